#include "documents/ItemListDocument.h"

#include "documents/HTMLExport.h"

namespace emporium {

void WriteItemList(const ItemEditor& editor, std::string& document) {
    HTMLHead(editor.cmbKategorien.Text(), document);
    HTMLTableOpen(document);
    HTMLLine("<tr>", document);
    for (const auto caption : {std::string_view("NAME:"), std::string_view("GEWICHT:"),
                               std::string_view("PREIS:"), "VERFÜGBAR IN:"_ansi})
        HTMLHeaderCell(caption, document);
    HTMLLine("</tr>", document);
    for (const int row : editor.lvGegenstände.rows) {
        const RecordView& record = editor.Record(row);
        HTMLLine("<tr>", document);
        HTMLCell(ItemName(record), "35%", document);
        HTMLCell(record[WeightField], "15%", document);
        HTMLCell(record[PriceField], "15%", document);
        HTMLAvailabilityCell(record[AvailabilityField], document);
        HTMLLine("</tr>", document);
    }
    HTMLLine("</table>", document);
}

} // namespace emporium
