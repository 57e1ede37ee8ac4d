#include "itemeditor/ItemEditor.h"

#include "regions/AtlasEngine.h"
#include "store/CategoryPaths.h"

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

void UpdateItemButtons(ItemEditor& editor) {
    const bool filled = !editor.Items.empty();
    editor.cmdItemDelete.enabled = filled;
    editor.cmdListeDrucken.enabled = filled;
    editor.cmdItemHin.enabled = filled;
    const std::string chosen = editor.cmbKategorien.Text();
    editor.cmdKategorieDelete.enabled =
        !filled && !chosen.empty() && chosen != AllCategories && !IsFixedCategory(chosen);
}

} // namespace emporium
