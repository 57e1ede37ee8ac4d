#include "itemeditor/CategoryChoice.h"

#include "files/FileFailure.h"
#include "itemeditor/ItemForm.h"
#include "itemeditor/ItemList.h"
#include "store/CategoryList.h"
#include "store/WriteTurn.h"

namespace emporium {

namespace {

// The names that the view of the chosen entry is made of.
std::vector<std::string> NamesOfView(const ItemEditor& editor, const Platform& platform,
                                     std::vector<std::string>& faults) {
    const std::string chosen = editor.cmbKategorien.Text();
    if (chosen.empty()) // the category has gone from the list meanwhile
        return {};
    if (chosen != AllCategories)
        return {chosen};
    CategoryList list = ReadCategoryNames(platform.disk);
    if (const auto fault = CategoryListFault(list); !fault.empty())
        faults.push_back(fault);
    return std::move(list.names);
}

// The records of the chosen entry; nothing of the form.
void ReadView(ItemEditor& editor, const Platform& platform, std::vector<std::string>& faults) {
    ResetView(editor);
    if (auto notice = FinishBeforeReading(platform.disk); !notice.empty())
        faults.push_back(std::move(notice));
    for (const std::string& name : NamesOfView(editor, platform, faults))
        AddToView(editor, name, ReadCategoryFile(platform.disk, name), faults);
    editor.CurrentItemRow = editor.Items.empty() ? -1 : 0;
    FillItemList(editor);
}

} // namespace

void ResetView(ItemEditor& editor) {
    editor.viewFiles.clear();
    editor.Items.clear();
    editor.CurrentItemRow = -1;
    editor.EditingExisting = false;
    editor.lvGegenstände.toolTip.clear();
}

void ChooseCategory(ItemEditor& editor, const Platform& platform, int index) {
    editor.cmbKategorien.Select(index);
    LoadItems(editor, platform);
}

void LoadItems(ItemEditor& editor, const Platform& platform) {
    std::vector<std::string> faults;
    ReadView(editor, platform, faults);
    editor.lvGegenstände.visible = true;
    editor.cmdItemSave.visible = editor.cmdItemDelete.visible = editor.cmdItemNeu.visible = true;
    editor.cmbItemKategorien.Select(editor.cmbKategorien.Selection());
    ClearItemForm(editor);
    UpdateItemButtons(editor);
    if (!faults.empty())
        platform.ShowMessage(FaultsText(faults));
}

void ReloadItems(ItemEditor& editor, const Platform& platform) {
    const ItemEditor before = editor; // keeps the text of its views alive
    std::vector<std::string> faults;
    ReadView(editor, platform, faults);
    const int row = before.CurrentItemRow < 0 ? -1 : RowLike(editor, before, before.CurrentItemRow);
    editor.CurrentItemRow = row;
    if (row >= 0) {
        editor.EditingExisting = before.EditingExisting;
        editor.lvGegenstände.toolTip = ItemName(editor.Record(row));
    }
    editor.lvGegenstände.reveal.Show(ChosenPlace(editor));
    UpdateItemButtons(editor);
    if (!faults.empty())
        platform.ShowMessage(FaultsText(faults));
}

} // namespace emporium
