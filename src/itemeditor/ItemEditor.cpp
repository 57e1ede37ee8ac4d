#include "itemeditor/ItemEditor.h"

namespace emporium {

ItemEditor::ItemEditor()
    : cmbItemPreis(ChoiceList::Order::AsAdded, {"Dukaten", "Silbertaler", "Heller", "Pfennig"}),
      cmbItemWert(ChoiceList::Order::AsAdded,
                  {"1 - Gibts in jedem Fachgeschäft"_ansi, "2 - Weit verbreiteter Gegenstand"_ansi,
                   "3 - Gibts im guten Fachgeschäft"_ansi,
                   "4 - Selten, gibts beim Spezialisten"_ansi, "5 - Extrem selten"_ansi}),
      lstRegionen(ChoiceList::Order::Sorted, AlphabeticalRegionCodes()) {
    cmdItemNeu.visible = cmdItemDelete.visible = cmdItemSave.visible = false;
    cmdItemSave.enabled = cmdKategorieDelete.enabled = cmdListeDrucken.enabled = false;
    cmdItemHin.visible = false;
}

} // namespace emporium
