#include "documents/ShopDocument.h"

#include "documents/HTMLExport.h"
#include "files/FileWriting.h"
#include "text/Ansi.h"

namespace emporium {

namespace {

void WriteHeading(const ShopEditor& shop, std::string& file) {
    HTMLHead(shop.txtName.text, file);
    HTMLHeading(shop.txtName.text, 1, file);
}

// What follows the owner, up to the table's first header cells.
void WriteChoices(const ShopEditor& shop, std::string& file) {
    HTMLLabelLine("Region: ", shop.cmbShopRegion.Text(), file);
    HTMLLabelLine("Preise: ", shop.cmbShopPreise.Text(), file);
    HTMLLabelLine("Qualität: "_ansi, shop.cmbShopQualität.Text(), file);
    HTMLBreaks(3, file);
    HTMLTableOpen(file);
    HTMLLine("<tr>", file);
    HTMLHeaderCell("NAME:", file);
    HTMLHeaderCell("GEWICHT:", file);
    HTMLHeaderCell("PREIS:", file);
}

} // namespace

void WriteShopExport(const ShopEditor& shop, std::string& file) {
    WriteHeading(shop, file);
    HTMLLabelLine("Name des Shops: ", shop.txtName.text, file);
    HTMLLabelLine("Shopart: ", shop.txtShopart.text, file);
    HTMLLabelLine("Besitzer/in: ", shop.txtBesitzerName.text, file);
    WriteChoices(shop, file);
    HTMLLine("</tr>", file);
    for (const auto& row : shop.lvLaden.rows) {
        HTMLLine("<tr>", file);
        HTMLCell(row->Text, "50%", file);
        HTMLCell(row->Weight + " Unzen", "40%", file);
        HTMLCell(row->Price, "10%", file);
        HTMLLine("</tr>", file);
    }
    HTMLLine("</tr>", file);
    HTMLLine("</table>", file);
}

void WriteShopPrint(const ShopEditor& shop, std::string& file) {
    WriteHeading(shop, file);
    HTMLLabelLine("Shopart: ", shop.txtShopart.text, file);
    HTMLLabelLine("Besitzer: ", shop.txtBesitzerName.text, file);
    WriteChoices(shop, file);
    HTMLHeaderCell("VERFÜGBAR IN:"_ansi, file);
    HTMLLine("</tr>", file);
    for (const auto& row : shop.lvLaden.rows) {
        HTMLLine("<tr>", file);
        HTMLCell(row->Text, "35%", file);
        HTMLCell(row->Weight, "15%", file);
        HTMLCell(row->Price, "15%", file);
        HTMLAvailabilityCell(row->ShopAvailability, file);
        HTMLLine("</tr>", file);
    }
    HTMLLine("</table>", file);
}

void ExportShop(const ShopEditor& shop, const Platform& platform) {
    platform.disk.files.createFolder(platform.disk.folders.HtmlFolder);
    const auto target =
        platform.ShowSave(platform.disk.folders.HtmlFolder, "HTML-Dateien (*.html)|*.html");
    if (target.empty())
        return;
    platform.SetWaitPointer(true);
    std::string document;
    WriteShopExport(shop, document);
    const auto failure = WriteDocument(platform.disk.files, target, document);
    platform.SetWaitPointer(false);
    if (failure) {
        platform.ShowMessage(FailureText("Der Shop konnte nicht gespeichert werden.", *failure));
        return;
    }
    if (platform.AskYesNo(
            {"Der Shop wurde erfolgreich erstellt, wollt ihr euch diesen nun ansehen ?."}))
        platform.OpenInViewer(target);
}

} // namespace emporium
