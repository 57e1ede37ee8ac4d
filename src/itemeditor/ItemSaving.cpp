#include "itemeditor/ItemSaving.h"

#include "itemeditor/CategoryChoice.h"
#include "itemeditor/ItemForm.h"
#include "itemeditor/ItemList.h"
#include "itemeditor/ItemToDisk.h"
#include "store/WriteTurn.h"

namespace emporium {

namespace {

void EndEditing(ItemEditor& editor) {
    ClearItemForm(editor);
    editor.EditingExisting = false;
}

// Removes the current item, on disk together with what `more` adds.
void RemoveItemRow(ItemEditor& editor, const Platform& platform, const WriteWording& words,
                   const MoreChanges& more = {}) {
    const int row = editor.CurrentItemRow;
    if (!WriteRow(editor, platform, {row, editor.HomeOf(row), nullptr}, words, more))
        return;
    DropItemRow(editor, row);
    EndEditing(editor);
    UpdateItemButtons(editor);
}

void MoveItem(ItemEditor& editor, const Platform& platform) {
    const ItemRecord stored = CopyOf(editor.Record(editor.CurrentItemRow));
    if (!HasMark(ViewOf(stored), NameField) || !HasMark(ViewOf(stored), PriceField)) {
        platform.ShowMessage("Diesem Gegenstand fehlt Name, Wert, Preis oder Währung. Speichert "
                             "ihn zuerst in seiner Kategorie, dann kann er in eine andere."_ansi);
        return;
    }
    const std::string target = editor.cmbItemKategorien.Text();
    RemoveItemRow(editor, platform, SavingWords, [&](std::vector<FileChange>& changes) {
        return AppendTo(platform.disk, target, stored, changes);
    });
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
        if (!WriteRow(editor, platform, {row, editor.HomeOf(row), &record}, SavingWords))
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
    if (!WriteRow(editor, platform, {row, home, &record}, SavingWords))
        return;
    AddItemRow(editor, row);
    UpdateItemButtons(editor);
    EndEditing(editor);
}

// Writes the record behind the others of a category that the view does not know. The category of
// the form becomes the view.
void SaveOutsideView(ItemEditor& editor, const Platform& platform, const ItemRecord& record) {
    const Disk& disk = platform.disk;
    const Outcome outcome = InTurn(disk, [&]() -> Outcome {
        std::vector<FileChange> changes;
        Outcome added = AppendTo(disk, editor.cmbItemKategorien.Text(), record, changes);
        return added.stands ? WriteChanges(disk, changes, SavingWords.failed) : added;
    });
    if (Tell(platform, outcome))
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
        RemoveItemRow(editor, platform, DeletingWords);
}

} // namespace emporium
