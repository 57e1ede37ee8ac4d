#include "itemeditor/ItemSaving.h"

#include "files/FileWriting.h"
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
constexpr std::string_view Gone = "Diese Kategorie gibt es nicht mehr. Wählt eine andere."_ansi;

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

bool Refuse(const Platform& platform, const std::string& category, std::string_view why) {
    platform.ShowMessage(category + ".dat: " + std::string(why));
    return false;
}

// A missing file is made anew, but not for a category that another program has deleted: nobody
// would find the item there. False, after a box, for such a one.
bool IsListed(const Platform& platform, const std::string& category) {
    const CategoryList list = ReadCategoryNames(platform.disk);
    return list.state != FileText::State::Whole ||
           std::find(list.names.begin(), list.names.end(), category) != list.names.end() ||
           Refuse(platform, category, Gone);
}

bool AskToReload(const Platform& platform, const std::string& category) {
    return platform.AskYesNo(
        {category +
             std::string(".dat wurde inzwischen von einem anderen Programm geändert. Soll der neue "
                         "Stand geladen werden ?\n\n"
                         "Ja: Die Liste zeigt den neuen Stand. Gespeichert wird nichts, eure "
                         "Eingaben bleiben im Formular.\n"
                         "Nein: Der Stand dieses Fensters wird gespeichert, die andere Änderung "
                         "geht verloren."_ansi),
         BoxIcon::Warning, true});
}

// True if the file may be written: it holds what was last read or written, or the user wants to go
// on all the same.
bool MayReplace(ItemEditor& editor, const Platform& platform, int home, std::string_view what) {
    const ViewFile file = editor.FileAt(home);
    if (!file.canBeWritten)
        return Refuse(platform, file.name, NotWhole);
    if (!ReadyToWrite(platform))
        return false;
    const auto path = CategoryPath(platform.disk.folders, file.name);
    const FileText present = platform.disk.files.read(path);
    if (present.state == FileText::State::Unreadable) {
        platform.ShowMessage(FailureText(what, {path, present.reason}));
        return false;
    }
    if (present.state == FileText::State::Absent && !IsListed(platform, file.name))
        return false;
    if (present.bytes == *file.bytes)
        return true;
    const bool reload = AskToReload(platform, file.name);
    if (reload)
        ReloadItems(editor, platform);
    return !reload;
}

std::string FileTextWith(const ItemEditor& editor, std::string_view bytes,
                         const RowChange& change) {
    if (change.row == editor.ItemCount())
        return WithRecords(bytes, {*change.record});
    const RecordView& place = editor.Record(change.row);
    return change.record ? WithRecordAt(bytes, place, *change.record)
                         : WithoutRecordAt(bytes, place);
}

// The records as the file holds them now.
void TakeOver(ItemEditor& editor, int home, const RowChange& change, SharedText text) {
    if (change.row == editor.ItemCount()) {
        editor.Items.emplace_back();
        editor.ItemHomeCategories.push_back(home);
    } else if (!change.record) {
        editor.Items.erase(editor.Items.begin() + change.row);
        editor.ItemHomeCategories.erase(editor.ItemHomeCategories.begin() + change.row);
    }
    RecordReader reader(*text);
    for (std::size_t row = 0; row < editor.Items.size(); ++row)
        if (editor.ItemHomeCategories[row] == home)
            reader.Next(editor.Items[row]);
    editor.viewFiles[static_cast<std::size_t>(home)].bytes = std::move(text);
}

// Writes the file that the row belongs to, together with `others`, and takes the change over into
// the records. False, after a box, if nothing was written.
bool RebuildCategoryFiles(ItemEditor& editor, const Platform& platform, int home,
                          const RowChange& change, std::vector<FileChange> others,
                          std::string_view what) {
    if (!MayReplace(editor, platform, home, what))
        return false;
    const ViewFile& file = editor.FileAt(home);
    auto text = std::make_shared<const std::string>(FileTextWith(editor, *file.bytes, change));
    others.push_back({CategoryPath(platform.disk.folders, file.name), *text});
    if (ReportFailure(
            platform, what,
            WriteFiles(platform.disk.files, platform.disk.folders.EmporiumFolder(), others)))
        return false;
    TakeOver(editor, home, change, std::move(text));
    return true;
}

void EndEditing(ItemEditor& editor) {
    ClearItemForm(editor);
    editor.EditingExisting = false;
}

// Removes the current item, on disk together with `others`.
void RemoveItemRow(ItemEditor& editor, const Platform& platform, std::vector<FileChange> others,
                   std::string_view what) {
    const int row = editor.CurrentItemRow;
    if (!RebuildCategoryFiles(editor, platform, editor.HomeOf(row), {row, nullptr},
                              std::move(others), what))
        return;
    DropItemRow(editor, row);
    EndEditing(editor);
    UpdateItemButtons(editor);
}

// The file of another category with the record behind its last one. False, after a box, if that
// file can't be read whole or is full, or if the category is gone.
bool AppendedTo(const Platform& platform, const std::string& category, const ItemRecord& record,
                std::vector<FileChange>& changes) {
    if (!ReadyToWrite(platform))
        return false;
    const CategoryFile file = ReadCategoryFile(platform.disk, category);
    if (file.state == FileText::State::Unreadable) {
        platform.ShowMessage(
            FailureText(NotSaved, {CategoryPath(platform.disk.folders, category), file.reason}));
        return false;
    }
    if (!file.CanBeWritten())
        return Refuse(platform, category, NotWhole);
    if (file.state == FileText::State::Absent && !IsListed(platform, category))
        return false;
    if (file.records.size() >= MaxRows)
        return Refuse(platform, category, CategoryIsFull);
    changes.push_back(
        {CategoryPath(platform.disk.folders, category), WithRecords(*file.bytes, {record})});
    return true;
}

void MoveItem(ItemEditor& editor, const Platform& platform) {
    const ItemRecord stored = CopyOf(editor.Record(editor.CurrentItemRow));
    std::vector<FileChange> target;
    if (AppendedTo(platform, editor.cmbItemKategorien.Text(), stored, target))
        RemoveItemRow(editor, platform, std::move(target), NotSaved);
}

bool CountsAsMoved(const ItemEditor& editor) {
    const std::string view = editor.cmbKategorien.Text();
    const std::string wanted = editor.cmbItemKategorien.Text();
    return view != wanted && view != AllCategories && wanted != AllCategories && !wanted.empty();
}

void SaveMoved(ItemEditor& editor, const Platform& platform) {
    const bool yes = platform.AskYesNo(
        {std::string("Ihr habt die Kategorie des Gegenstandes geändert, soll er wirklich einer "
                     "anderen Kategorie zugeordnet werden ?"_ansi)});
    if (yes)
        MoveItem(editor, platform);
    else
        EndEditing(editor);
}

void SaveChanged(ItemEditor& editor, const Platform& platform, const ItemRecord& record) {
    const int row = editor.CurrentItemRow;
    if (ViewOf(record) != editor.Record(row)) {
        if (!RebuildCategoryFiles(editor, platform, editor.HomeOf(row), {row, &record}, {},
                                  NotSaved))
            return;
        PlaceItemRow(editor, row);
    }
    EndEditing(editor);
}

void SaveIntoView(ItemEditor& editor, const Platform& platform, int home,
                  const ItemRecord& record) {
    const int row = editor.ItemCount();
    if (row == MaxRows) {
        platform.ShowMessage("Die Ansicht ist voll: Sie fasst höchstens 32767 Gegenstände."_ansi);
        return;
    }
    if (!RebuildCategoryFiles(editor, platform, home, {row, &record}, {}, NotSaved))
        return;
    AddItemRow(editor, row);
    UpdateItemButtons(editor);
    EndEditing(editor);
}

// The view does not know the category of the form: that becomes the view.
void SaveOutsideView(ItemEditor& editor, const Platform& platform, const ItemRecord& record) {
    const std::string category = editor.cmbItemKategorien.Text();
    std::vector<FileChange> changes;
    if (!AppendedTo(platform, category, record, changes) ||
        ReportFailure(
            platform, NotSaved,
            WriteFiles(platform.disk.files, platform.disk.folders.EmporiumFolder(), changes)))
        return;
    ChooseCategory(editor, platform, editor.cmbItemKategorien.Selection());
}

void SaveNew(ItemEditor& editor, const Platform& platform, const ItemRecord& record) {
    const std::string view = editor.cmbKategorien.Text();
    const std::string wanted = editor.cmbItemKategorien.Text();
    const bool ownHome = !view.empty() && view != AllCategories;
    const int home = ViewFileOf(editor, ownHome ? view : wanted);
    if (home >= 0)
        SaveIntoView(editor, platform, home, record);
    else if (!wanted.empty() && wanted != AllCategories)
        SaveOutsideView(editor, platform, record);
    else
        platform.ShowMessage("Bitte wählt im Feld Kategorie aus, wohin der neue Gegenstand "
                             "gehört."_ansi);
}

} // namespace

void SaveItem(ItemEditor& editor, const Platform& platform) {
    if (editor.cmbItemPreis.Selection() < 0) {
        platform.ShowMessage("Bitte wählt zum Preis auch eine Währung aus."_ansi);
        platform.FocusItemUnit();
        return;
    }
    if (!editor.EditingExisting)
        SaveNew(editor, platform, RecordOfForm(editor));
    else if (CountsAsMoved(editor))
        SaveMoved(editor, platform);
    else
        SaveChanged(editor, platform, RecordOfForm(editor));
}

void ConfirmDeleteItem(ItemEditor& editor, const Platform& platform) {
    if (editor.CurrentItemRow < 0) {
        if (!editor.Items.empty())
            platform.ShowMessage("Bitte wählt zuerst einen Gegenstand aus."_ansi);
        return;
    }
    if (platform.AskYesNo(
            {std::string("Wollt ihr den gewählten Gegenstand wirklich löschen ?"_ansi)}))
        RemoveItemRow(editor, platform, {}, NotDeleted);
}

} // namespace emporium
