#include "documents/ShopDocument.h"

#include "documents/HTMLExport.h"
#include "text/Ansi.h"

namespace emporium {

namespace {

void WriteHeading(const ShopEditor& shop, std::string& document) {
    HTMLHead(shop.txtName.text, document);
    HTMLHeading(shop.txtName.text, 1, document);
}

// What follows the owner, up to the table's first header cells.
void WriteChoices(const ShopEditor& shop, std::string& document) {
    HTMLLabelLine("Region: ", shop.cmbShopRegion.Text(), document);
    HTMLLabelLine("Preise: ", shop.cmbShopPreise.Text(), document);
    HTMLLabelLine("Qualität: "_ansi, shop.cmbShopQualität.Text(), document);
    HTMLBreaks(3, document);
    HTMLTableOpen(document);
    HTMLLine("<tr>", document);
    HTMLHeaderCell("NAME:", document);
    HTMLHeaderCell("GEWICHT:", document);
    HTMLHeaderCell("PREIS:", document);
}

} // namespace

void WriteShopExport(const ShopEditor& shop, std::string& document) {
    WriteHeading(shop, document);
    HTMLLabelLine("Name des Shops: ", shop.txtName.text, document);
    HTMLLabelLine("Shopart: ", shop.txtShopart.text, document);
    HTMLLabelLine("Besitzer/in: ", shop.txtBesitzerName.text, document);
    WriteChoices(shop, document);
    HTMLLine("</tr>", document);
    for (const ShopRow& row : shop.lvLaden.rows) {
        HTMLLine("<tr>", document);
        HTMLCell(ShopCell(row, ShopTextColumn), "50%", document);
        HTMLCell(std::string(row.Weight) + " Unzen", "40%", document);
        HTMLCell(row.Price, "10%", document);
        HTMLLine("</tr>", document);
    }
    HTMLLine("</tr>", document);
    HTMLLine("</table>", document);
}

void WriteShopPrint(const ShopEditor& shop, std::string& document) {
    WriteHeading(shop, document);
    HTMLLabelLine("Shopart: ", shop.txtShopart.text, document);
    HTMLLabelLine("Besitzer: ", shop.txtBesitzerName.text, document);
    WriteChoices(shop, document);
    HTMLHeaderCell("VERFÜGBAR IN:"_ansi, document);
    HTMLLine("</tr>", document);
    for (const ShopRow& row : shop.lvLaden.rows) {
        HTMLLine("<tr>", document);
        HTMLCell(ShopCell(row, ShopTextColumn), "35%", document);
        HTMLCell(row.Weight, "15%", document);
        HTMLCell(row.Price, "15%", document);
        HTMLAvailabilityCell(row.ShopAvailability, document);
        HTMLLine("</tr>", document);
    }
    HTMLLine("</table>", document);
}

} // namespace emporium
