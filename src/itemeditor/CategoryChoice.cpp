#include "itemeditor/CategoryChoice.h"

#include "files/FileFailure.h"
#include "itemeditor/ItemForm.h"
#include "itemeditor/ItemList.h"
#include "store/CategoryList.h"
#include "store/WriteTurn.h"

#include <algorithm>

namespace emporium {

namespace {

// Takes as many of the file's records as the view has room for.
void AddToView(ItemEditor& editor, const std::string& name, const CategoryFile& file,
               std::vector<std::string>& faults) {
    const auto found = CategoryFaults(name, file);
    faults.insert(faults.end(), found.begin(), found.end());
    const auto room = static_cast<std::size_t>(MaxRows - editor.ItemCount());
    const auto count = std::min(room, file.records.size());
    if (count < file.records.size())
        faults.push_back(name +
                         std::string(".dat: Die Ansicht fasst höchstens 32767 Gegenstände. Was "
                                     "darüber hinausgeht, wird nicht gezeigt, und die Datei wird "
                                     "von hier aus nicht verändert."_ansi));
    const int home = static_cast<int>(editor.viewFiles.size());
    for (std::size_t i = 0; i < count; ++i)
        editor.Items.push_back({file.records[i], home});
    editor.viewFiles.push_back(
        {name, file.bytes, file.CanBeWritten() && count == file.records.size()});
}

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

// The entry that was chosen stays chosen if there still is one of that name.
void ShowNames(ChoiceList& list, const std::vector<std::string>& names) {
    const std::string chosen = list.Text();
    list = ChoiceList(ChoiceList::Order::Sorted, {AllCategories});
    list.AddAll(names);
    const auto& entries = list.Entries();
    const auto place = std::find(entries.begin(), entries.end(), chosen) - entries.begin();
    list.Select(static_cast<int>(place));
}

// The row of the record that is chosen in `before`, in the same category; -1 if it is gone.
int FindRecord(const ItemEditor& editor, const ItemEditor& before) {
    const int chosen = before.CurrentItemRow;
    for (int row = 0; row < editor.ItemCount(); ++row)
        if (editor.Record(row) == before.Record(chosen) &&
            editor.FileAt(editor.HomeOf(row)).name == before.FileAt(before.HomeOf(chosen)).name)
            return row;
    return -1;
}

} // namespace

void ResetView(ItemEditor& editor) {
    editor.viewFiles.clear();
    editor.Items.clear();
    editor.CurrentItemRow = -1;
    editor.EditingExisting = false;
    editor.lvGegenstände.toolTip.clear();
}

void SetCategoryNames(ItemEditor& editor, const std::vector<std::string>& names) {
    ShowNames(editor.cmbKategorien, names);
    ShowNames(editor.cmbItemKategorien, names);
}

void ReadCategoryList(ItemEditor& editor, const Disk& disk, std::vector<std::string>& faults) {
    const CategoryList list = ReadCategoryNames(disk);
    const bool whole = list.state == FileText::State::Whole;
    std::string fault = CategoryListFault(list);
    if (!whole)
        fault += " Deshalb gibt es nur die Auswahl „Alles“."_ansi;
    if (!fault.empty())
        faults.push_back(std::move(fault));
    editor.cmdKategorieNeu.enabled = list.state != FileText::State::Unreadable;
    SetCategoryNames(editor, list.names);
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
    const int row = before.CurrentItemRow < 0 ? -1 : FindRecord(editor, before);
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

void UpdateItemButtons(ItemEditor& editor) {
    const bool filled = !editor.Items.empty();
    editor.cmdItemDelete.enabled = filled;
    editor.cmdListeDrucken.enabled = filled;
    editor.cmdItemHin.enabled = filled;
    const std::string chosen = editor.cmbKategorien.Text();
    editor.cmdKategorieDelete.enabled =
        !filled && !chosen.empty() && chosen != AllCategories && !IsFixedCategory(chosen);
}

int ViewFileOf(const ItemEditor& editor, std::string_view category) {
    const auto found =
        std::find_if(editor.viewFiles.begin(), editor.viewFiles.end(),
                     [category](const ViewFile& file) { return file.name == category; });
    return found == editor.viewFiles.end() ? -1
                                           : static_cast<int>(found - editor.viewFiles.begin());
}

} // namespace emporium
