#include "itemeditor/ItemSaving.h"

#include "base/FileWriting.h"
#include "itemeditor/CategoryChoice.h"
#include "itemeditor/ItemForm.h"
#include "itemeditor/ItemList.h"

#include <algorithm>

namespace emporium {

namespace {

constexpr std::string_view NotSaved = "Der Gegenstand konnte nicht gespeichert werden.";
constexpr std::string_view NotDeleted = "Der Gegenstand konnte nicht gelöscht werden."_ansi;
constexpr std::string_view NotWhole =
    "Diese Kategorie konnte nicht vollständig gelesen werden, deshalb wird ihre Datei nicht "
    "verändert."_ansi;

// A change of one row on its way to the disk. The row ItemCount is a new one.
struct RowChange {
    int row;
    const ItemRecord* record; // null: the row goes
};

bool ReportFailure(const Platform& platform, std::string_view what,
                   const std::optional<FileFailure>& failure) {
    if (failure)
        platform.ShowMessage(FailureText(what, *failure));
    return failure.has_value();
}

bool ReportNotWhole(const Platform& platform, const std::string& category) {
    platform.ShowMessage(category + ".dat: " + std::string(NotWhole));
    return false;
}

// The bytes of one of the view's files with the change applied.
std::string FileTextWith(const ItemEditor& editor, int home, const RowChange& change) {
    std::string text;
    for (int row = 0; row < editor.ItemCount(); ++row) {
        if (editor.ItemHomeCategories[static_cast<std::size_t>(row)] != home)
            continue;
        const ItemRecord* record = row == change.row ? change.record : &editor.Record(row);
        if (record)
            AppendRecord(text, *record);
    }
    if (change.row == editor.ItemCount())
        AppendRecord(text, *change.record);
    return text;
}

// Writes the file that the row belongs to, together with `others`. False, after a box, if it
// failed.
bool RebuildCategoryFiles(const ItemEditor& editor, const Platform& platform,
                          const Folders& folders, int home, const RowChange& change,
                          std::vector<FileChange> others, std::string_view what) {
    const ViewFile& file = editor.viewFiles[static_cast<std::size_t>(home)];
    if (!file.canBeWritten)
        return ReportNotWhole(platform, file.name);
    others.push_back({CategoryPath(folders, file.name), FileTextWith(editor, home, change)});
    return !ReportFailure(platform, what,
                          WriteFiles(platform.files, folders.EmporiumFolder(), others));
}

int HomeOf(const ItemEditor& editor, int row) {
    return editor.ItemHomeCategories[static_cast<std::size_t>(row)];
}

void EndEditing(ItemEditor& editor) {
    ClearItemForm(editor);
    editor.EditingExisting = false;
}

// The item list and the records without the row.
void TakeOut(ItemEditor& editor, int row) {
    editor.Items.erase(editor.Items.begin() + row);
    editor.ItemHomeCategories.erase(editor.ItemHomeCategories.begin() + row);
    DropItemRow(editor, row);
    editor.CurrentItemRow = std::min(row, editor.ItemCount() - 1);
    editor.lvGegenstände.toolTip.clear();
}

// Removes the current item, on disk together with `others`.
void RemoveItemRow(ItemEditor& editor, const Platform& platform, const Folders& folders,
                   std::vector<FileChange> others, std::string_view what) {
    const int row = editor.CurrentItemRow;
    if (!RebuildCategoryFiles(editor, platform, folders, HomeOf(editor, row), {row, nullptr},
                              std::move(others), what))
        return;
    TakeOut(editor, row);
    EndEditing(editor);
    UpdateItemButtons(editor);
    editor.cmdItemSave.enabled = false;
}

// The file of another category with the record behind its last one. False, after a box, if that
// file can't be read whole.
bool AppendedTo(const Platform& platform, const Folders& folders, const std::string& category,
                const ItemRecord& record, std::vector<FileChange>& changes) {
    const CategoryFile file = ReadCategoryFile(platform.files, folders, category);
    if (!file.CanBeWritten())
        return ReportNotWhole(platform, category);
    changes.push_back({CategoryPath(folders, category), WithRecords(file, {record})});
    return true;
}

void MoveItem(ItemEditor& editor, const Platform& platform, const Folders& folders) {
    const ItemRecord& stored = editor.Record(editor.CurrentItemRow);
    std::vector<FileChange> target;
    if (AppendedTo(platform, folders, editor.cmbItemKategorien.Text(), stored, target))
        RemoveItemRow(editor, platform, folders, std::move(target), NotSaved);
}

bool CountsAsMoved(const ItemEditor& editor) {
    const std::string view = editor.cmbKategorien.Text();
    const std::string wanted = editor.cmbItemKategorien.Text();
    return view != wanted && view != AllCategories && wanted != AllCategories && !wanted.empty();
}

void SaveMoved(ItemEditor& editor, const Platform& platform, const Folders& folders) {
    const bool yes = platform.AskYesNo(
        {std::string("Ihr habt die Kategorie des Gegenstandes geändert, soll er wirklich einer "
                     "anderen Kategorie zugeordnet werden ?"_ansi),
         BoxIcon::Question, std::string(ProgramTitle)});
    if (yes)
        MoveItem(editor, platform, folders);
    else
        EndEditing(editor);
}

void SaveChanged(ItemEditor& editor, const Platform& platform, const Folders& folders,
                 ItemRecord record) {
    const int row = editor.CurrentItemRow;
    auto& stored = editor.Items[static_cast<std::size_t>(row)];
    if (record != stored) {
        if (!RebuildCategoryFiles(editor, platform, folders, HomeOf(editor, row), {row, &record},
                                  {}, NotSaved))
            return;
        stored = std::move(record);
        PlaceItemRow(editor, row);
    }
    EndEditing(editor);
}

void AddToView(ItemEditor& editor, const Platform& platform, const Folders& folders, int home,
               ItemRecord record) {
    const int row = editor.ItemCount();
    if (row == MaxRows) {
        platform.ShowMessage("Die Ansicht ist voll: Sie fasst höchstens 32767 Gegenstände."_ansi);
        return;
    }
    if (!RebuildCategoryFiles(editor, platform, folders, home, {row, &record}, {}, NotSaved))
        return;
    editor.Items.push_back(std::move(record));
    editor.ItemHomeCategories.push_back(home);
    AddItemRow(editor, row);
    editor.CurrentItemRow = std::max(editor.CurrentItemRow, 0);
    UpdateItemButtons(editor);
    EndEditing(editor);
}

// No category is chosen: the item goes to the one of the form, which becomes the view.
void AddWithoutView(ItemEditor& editor, const Platform& platform, const Folders& folders,
                    const ItemRecord& record) {
    const std::string category = editor.cmbItemKategorien.Text();
    std::vector<FileChange> changes;
    if (!AppendedTo(platform, folders, category, record, changes) ||
        ReportFailure(platform, NotSaved,
                      WriteFiles(platform.files, folders.EmporiumFolder(), changes)))
        return;
    ChooseCategory(editor, platform, folders, editor.cmbItemKategorien.Selection());
}

void SaveNew(ItemEditor& editor, const Platform& platform, const Folders& folders,
             ItemRecord record) {
    const std::string view = editor.cmbKategorien.Text();
    const std::string wanted = editor.cmbItemKategorien.Text();
    const bool ownHome = !view.empty() && view != AllCategories;
    const int home = ViewFileOf(editor, ownHome ? view : wanted);
    if (home >= 0)
        AddToView(editor, platform, folders, home, std::move(record));
    else if (view.empty() && !wanted.empty() && wanted != AllCategories)
        AddWithoutView(editor, platform, folders, record);
    else
        platform.ShowMessage("Bitte wählt im Feld Kategorie aus, wohin der neue Gegenstand "
                             "gehört."_ansi);
}

} // namespace

void SaveItem(ItemEditor& editor, const Platform& platform, const Folders& folders) {
    if (editor.cmbItemPreis.Selection() < 0) {
        platform.ShowMessage("Bitte wählt zum Preis auch eine Währung aus."_ansi);
        return;
    }
    if (!editor.EditingExisting)
        SaveNew(editor, platform, folders, RecordOfForm(editor));
    else if (CountsAsMoved(editor))
        SaveMoved(editor, platform, folders);
    else
        SaveChanged(editor, platform, folders, RecordOfForm(editor));
}

void ConfirmDeleteItem(ItemEditor& editor, const Platform& platform, const Folders& folders) {
    if (editor.CurrentItemRow < 0)
        return;
    if (platform.AskYesNo(
            {std::string("Wollt ihr den gewählten Gegenstand wirklich löschen ?"_ansi),
             BoxIcon::Question,
             {}}))
        RemoveItemRow(editor, platform, folders, {}, NotDeleted);
}

} // namespace emporium
