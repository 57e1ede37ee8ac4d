#include "documents/ItemListDocument.h"

#include "documents/HTMLExport.h"

namespace emporium {

void WriteItemList(const ItemEditor& editor, std::string& file) {
    HTMLHead(editor.cmbKategorien.Text(), file);
    HTMLTableOpen(file);
    HTMLLine("<tr>", file);
    for (const auto caption : {std::string_view("NAME:"), std::string_view("GEWICHT:"),
                               std::string_view("PREIS:"), "VERFÜGBAR IN:"_ansi})
        HTMLHeaderCell(caption, file);
    HTMLLine("</tr>", file);
    for (const int row : editor.lvGegenstände.rows) {
        const RecordView& record = editor.Record(row);
        HTMLLine("<tr>", file);
        HTMLCell(ItemName(record), "35%", file);
        HTMLCell(record[WeightField], "15%", file);
        HTMLCell(record[PriceField], "15%", file);
        HTMLAvailabilityCell(record[AvailabilityField], file);
        HTMLLine("</tr>", file);
    }
    HTMLLine("</table>", file);
}

} // namespace emporium
