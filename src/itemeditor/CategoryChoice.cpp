#include "itemeditor/CategoryChoice.h"

#include "files/FileWriting.h"
#include "itemeditor/ItemForm.h"
#include "itemeditor/ItemList.h"
#include "store/CategoryNames.h"

#include <algorithm>

namespace emporium {

namespace {

void ResetView(ItemEditor& editor) {
    editor.viewFiles.clear();
    editor.Items.clear();
    editor.ItemHomeCategories.clear();
    editor.CurrentItemRow = -1;
    editor.EditingExisting = false;
    editor.lvGegenstände.toolTip.clear();
}

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
    editor.ItemHomeCategories.insert(editor.ItemHomeCategories.end(), count,
                                     static_cast<int>(editor.viewFiles.size()));
    editor.Items.insert(editor.Items.end(), file.records.begin(),
                        file.records.begin() + static_cast<std::ptrdiff_t>(count));
    editor.viewFiles.push_back(
        {name, file.bytes, file.CanBeWritten() && count == file.records.size()});
}

// The names that the view of the chosen entry is made of.
std::vector<std::string> NamesOfView(const ItemEditor& editor, const Platform& platform,
                                     std::vector<std::string>& faults) {
    const std::string chosen = editor.cmbKategorien.Text();
    if (chosen.empty())
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

void SetCategoryNames(ItemEditor& editor, std::vector<std::string> names) {
    ShowNames(editor.cmbKategorien, names);
    ShowNames(editor.cmbItemKategorien, names);
    editor.CategoryNames = std::move(names);
}

constexpr std::string_view NotCreated = "Die Kategorie konnte nicht angelegt werden.";
constexpr std::string_view NotDeleted = "Die Kategorie konnte nicht gelöscht werden."_ansi;

// The list as it stands on the disk. False, after a box, if it can't be changed.
bool ReadListToChange(const Platform& platform, std::string_view what, CategoryList& list) {
    if (!ReadyToWrite(platform))
        return false;
    list = ReadCategoryNames(platform.disk);
    const std::string fault = CategoryListFault(list);
    if (!fault.empty())
        platform.ShowMessage(std::string(what) + "\n\n" + fault);
    return fault.empty();
}

// A usable name from the user and the list that it is to enter; an empty name if he gives up.
std::string AskCategoryName(const Platform& platform, CategoryList& list) {
    for (;;) {
        std::string name = platform.AskText("Bitte gebt der Kategorie einen Namen.", {});
        if (name.empty() || !ReadListToChange(platform, NotCreated, list))
            return {};
        const std::string refusal = CategoryNameRefusal(platform.disk, list.names, name);
        if (refusal.empty())
            return name;
        platform.ShowMessage(refusal);
    }
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

// Why the chosen category stays, empty if it can go.
std::string DeleteRefusal(const ItemEditor& editor, const Platform& platform,
                          const std::string& name) {
    const int file = ViewFileOf(editor, name);
    if (file >= 0 && !editor.FileAt(file).canBeWritten)
        return name + std::string(".dat: Diese Kategorie konnte nicht vollständig gelesen werden, "
                                  "deshalb wird sie nicht gelöscht."_ansi);
    const FileText present = platform.disk.files.read(CategoryPath(platform.disk.folders, name));
    if (present.state == FileText::State::Unreadable)
        return FailureText(NotDeleted, {CategoryPath(platform.disk.folders, name), present.reason});
    if (!present.bytes.empty())
        return name + std::string(".dat: Diese Kategorie ist nicht mehr leer, denn ein anderes "
                                  "Programm hat ihre Datei geändert. Sie wird nicht gelöscht. "
                                  "Wählt sie noch einmal, um den neuen Stand zu sehen."_ansi);
    return {};
}

} // namespace

void ReadCategoryList(ItemEditor& editor, const Disk& disk, std::vector<std::string>& faults) {
    CategoryList list = ReadCategoryNames(disk);
    const bool whole = list.state == FileText::State::Whole;
    std::string fault = CategoryListFault(list);
    if (!whole)
        fault += " Deshalb gibt es nur die Auswahl „Alles“, und neue Kategorien können nicht "
                 "angelegt werden."_ansi;
    if (!fault.empty())
        faults.push_back(std::move(fault));
    editor.cmdKategorieNeu.enabled = whole;
    SetCategoryNames(editor, std::move(list.names));
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

bool ReadyToWrite(const Platform& platform) {
    const auto failure = FinishJournal(platform.disk.files, platform.disk.folders.EmporiumFolder());
    if (failure)
        platform.ShowMessage(
            FailureText("Ein früherer Schreibvorgang konnte nicht beendet werden."_ansi, *failure));
    return !failure;
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

void NewCategory(ItemEditor& editor, const Platform& platform) {
    CategoryList list;
    const std::string name = AskCategoryName(platform, list);
    if (name.empty())
        return;
    const auto failure =
        WriteFiles(platform.disk.files, platform.disk.folders.EmporiumFolder(),
                   {{CategoryListPath(platform.disk.folders), WithCategory(list, name)},
                    {CategoryPath(platform.disk.folders, name), std::string()}});
    if (failure) {
        platform.ShowMessage(FailureText(NotCreated, *failure));
        return;
    }
    list.names.push_back(name);
    SetCategoryNames(editor, std::move(list.names));
    UpdateItemButtons(editor);
    if (editor.cmbKategorien.Text() == AllCategories)
        editor.viewFiles.push_back({name, std::make_shared<const std::string>(), true});
}

void DeleteCategory(ItemEditor& editor, const Platform& platform) {
    const std::string name = editor.cmbKategorien.Text();
    if (!platform.AskYesNo(
            {std::string("Soll die gewählte Kategorie wirklich gelöscht werden ?"_ansi)}))
        return;
    CategoryList list;
    if (!ReadListToChange(platform, NotDeleted, list))
        return;
    const std::string refusal = DeleteRefusal(editor, platform, name);
    if (!refusal.empty()) {
        platform.ShowMessage(refusal);
        return;
    }
    const auto failure =
        WriteFiles(platform.disk.files, platform.disk.folders.EmporiumFolder(),
                   {{CategoryListPath(platform.disk.folders), WithoutCategory(list, name)},
                    {CategoryPath(platform.disk.folders, name), std::nullopt}});
    if (failure) {
        platform.ShowMessage(FailureText(NotDeleted, *failure));
        return;
    }
    std::erase(list.names, name);
    SetCategoryNames(editor, std::move(list.names));
    ResetView(editor);
    UpdateItemButtons(editor);
}

int ViewFileOf(const ItemEditor& editor, std::string_view category) {
    const auto found =
        std::find_if(editor.viewFiles.begin(), editor.viewFiles.end(),
                     [category](const ViewFile& file) { return file.name == category; });
    return found == editor.viewFiles.end() ? -1
                                           : static_cast<int>(found - editor.viewFiles.begin());
}

} // namespace emporium
