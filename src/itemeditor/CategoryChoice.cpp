#include "itemeditor/CategoryChoice.h"

#include "base/FileWriting.h"
#include "itemeditor/ItemForm.h"
#include "itemeditor/ItemList.h"
#include "store/CategoryNames.h"

#include <algorithm>
#include <iterator>

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
void AddToView(ItemEditor& editor, CategoryFile file, ViewFile viewFile,
               std::vector<std::string>& faults) {
    const auto found = CategoryFaults(viewFile.name, file);
    faults.insert(faults.end(), found.begin(), found.end());
    const auto room = static_cast<std::size_t>(MaxRows - editor.ItemCount());
    if (file.records.size() > room) {
        faults.push_back(viewFile.name +
                         std::string(".dat: Die Ansicht fasst höchstens 32767 Gegenstände. Was "
                                     "darüber hinausgeht, wird nicht gezeigt, und die Datei wird "
                                     "von hier aus nicht verändert."_ansi));
        file.records.resize(room);
        viewFile.canBeWritten = false;
    }
    viewFile.canBeWritten = viewFile.canBeWritten && file.CanBeWritten();
    editor.ItemHomeCategories.insert(editor.ItemHomeCategories.end(), file.records.size(),
                                     static_cast<int>(editor.viewFiles.size()));
    std::move(file.records.begin(), file.records.end(), std::back_inserter(editor.Items));
    editor.viewFiles.push_back(std::move(viewFile));
}

// The names that the view of the chosen entry is made of.
std::vector<std::string> NamesOfView(const ItemEditor& editor, const Platform& platform,
                                     const Folders& folders, std::vector<std::string>& faults) {
    const std::string chosen = editor.cmbKategorien.Text();
    if (chosen.empty())
        return {};
    if (chosen != AllCategories)
        return {chosen};
    const CategoryList list = ReadCategoryNames(platform.files, folders);
    if (list.state != FileText::State::Whole)
        faults.push_back("ItemKategorien.dat: " + ReasonText(list.reason));
    return list.names;
}

} // namespace

void ReadCategoryList(ItemEditor& editor, const FileLayer& files, const Folders& folders,
                      std::vector<std::string>& faults) {
    CategoryList list = ReadCategoryNames(files, folders);
    if (list.state != FileText::State::Whole)
        faults.push_back("ItemKategorien.dat: " + ReasonText(list.reason) +
                         std::string(" Deshalb gibt es nur die Auswahl \"Alles\", und neue "
                                     "Kategorien können nicht angelegt werden."_ansi));
    editor.cmdKategorieNeu.enabled = list.state == FileText::State::Whole;
    editor.CategoryNames = std::move(list.names);
    for (const std::string& name : editor.CategoryNames) {
        editor.cmbKategorien.Add(name);
        editor.cmbItemKategorien.Add(name);
    }
}

void ChooseCategory(ItemEditor& editor, const Platform& platform, const Folders& folders,
                    int index) {
    editor.cmbKategorien.Select(index);
    LoadItems(editor, platform, folders);
}

void LoadItems(ItemEditor& editor, const Platform& platform, const Folders& folders) {
    ResetView(editor);
    std::vector<std::string> faults;
    for (const std::string& name : NamesOfView(editor, platform, folders, faults))
        AddToView(editor, ReadCategoryFile(platform.files, folders, name), {name, true}, faults);
    editor.CurrentItemRow = editor.Items.empty() ? -1 : 0;
    editor.lvGegenstände.visible = true;
    editor.cmdItemSave.visible = editor.cmdItemDelete.visible = editor.cmdItemNeu.visible = true;
    FillItemList(editor);
    editor.cmbItemKategorien.Select(editor.cmbKategorien.Selection());
    ClearItemForm(editor);
    UpdateItemButtons(editor);
    editor.cmdItemSave.enabled = false;
    if (!faults.empty())
        platform.ShowMessage(FaultsText(faults));
}

void UpdateItemButtons(ItemEditor& editor) {
    const bool filled = !editor.Items.empty();
    editor.cmdItemDelete.enabled = filled;
    editor.cmdListeDrucken.enabled = filled;
    editor.cmdItemSave.enabled = filled;
    editor.cmdItemHin.enabled = filled;
    const std::string chosen = editor.cmbKategorien.Text();
    editor.cmdKategorieDelete.enabled =
        !filled && !chosen.empty() && chosen != AllCategories && !IsFixedCategory(chosen);
}

void NewCategory(ItemEditor& editor, const Platform& platform, const Folders& folders) {
    std::string name;
    for (;;) {
        name = platform.AskText("Bitte gebt der Kategorie einen Namen.");
        if (name.empty())
            return;
        const std::string refusal = CategoryNameRefusal(folders, editor.CategoryNames, name);
        if (refusal.empty())
            break;
        platform.ShowMessage(refusal);
    }
    std::vector<std::string> names = editor.CategoryNames;
    names.push_back(name);
    const auto failure = WriteFiles(platform.files, folders.EmporiumFolder(),
                                    {{CategoryListPath(folders), CategoryListText(names)},
                                     {CategoryPath(folders, name), std::string()}});
    if (failure) {
        platform.ShowMessage(FailureText("Die Kategorie konnte nicht angelegt werden.", *failure));
        return;
    }
    editor.CategoryNames = std::move(names);
    editor.cmbKategorien.Add(name);
    editor.cmbItemKategorien.Add(name);
    if (editor.cmbKategorien.Text() == AllCategories)
        editor.viewFiles.push_back({name, true});
}

void DeleteCategory(ItemEditor& editor, const Platform& platform, const Folders& folders) {
    const std::string name = editor.cmbKategorien.Text();
    const int file = ViewFileOf(editor, name);
    if (file >= 0 && !editor.viewFiles[static_cast<std::size_t>(file)].canBeWritten) {
        platform.ShowMessage(name +
                             std::string(".dat: Diese Kategorie konnte nicht vollständig gelesen "
                                         "werden, deshalb wird sie nicht gelöscht."_ansi));
        return;
    }
    if (!platform.AskYesNo(
            {std::string("Soll die gewählte Kategorie wirklich gelöscht werden ?"_ansi),
             BoxIcon::Question, std::string(ProgramTitle)}))
        return;
    std::vector<std::string> names = editor.CategoryNames;
    std::erase(names, name);
    const auto failure = WriteFiles(platform.files, folders.EmporiumFolder(),
                                    {{CategoryListPath(folders), CategoryListText(names)},
                                     {CategoryPath(folders, name), std::nullopt}});
    if (failure) {
        platform.ShowMessage(
            FailureText("Die Kategorie konnte nicht gelöscht werden."_ansi, *failure));
        return;
    }
    editor.CategoryNames = std::move(names);
    // The form's own choice may have been set elsewhere since the category was loaded.
    editor.cmbItemKategorien.Select(editor.cmbKategorien.Selection());
    editor.cmbItemKategorien.RemoveSelected();
    editor.cmbKategorien.RemoveSelected();
    editor.cmdKategorieDelete.enabled = false;
    ResetView(editor);
}

int ViewFileOf(const ItemEditor& editor, std::string_view category) {
    const auto found =
        std::find_if(editor.viewFiles.begin(), editor.viewFiles.end(),
                     [category](const ViewFile& file) { return file.name == category; });
    return found == editor.viewFiles.end() ? -1
                                           : static_cast<int>(found - editor.viewFiles.begin());
}

} // namespace emporium
