// Carries out one operation on a program folder, through the control states as a user would:
// file_work FOLDER OPERATION. Every question is answered with Yes; what a box says goes to the
// standard output as it is, one line each.
// faults.py starts this program under faults from outside and looks at what is left on the disk.
#include "documents/PrintHost.h"
#include "documents/ShopDocument.h"
#include "files/FileFailure.h"
#include "frame/frmEmporiumMain.h"
#include "itemeditor/CategoryChoice.h"
#include "itemeditor/ItemForm.h"
#include "itemeditor/ItemList.h"
#include "itemeditor/ItemSaving.h"
#include "shopeditor/ShopList.h"
#include "text/Ansi.h"

#include <algorithm>
#include <iostream>
#include <map>

namespace emporium::test {
namespace {

int PlaceOf(const ChoiceList& list, std::string_view entry) {
    const auto found = std::find(list.Entries().begin(), list.Entries().end(), entry);
    return found == list.Entries().end() ? -1 : static_cast<int>(found - list.Entries().begin());
}

class FileWork {
public:
    explicit FileWork(const std::filesystem::path& folder) {
        platform.disk = {SystemFiles(), InitFolders(folder)};
        platform.AskYesNo = [](const YesNoBox&) { return true; };
        platform.ShowMessage = [this](std::string_view text) { TellBox(text); };
        platform.AskText = [this](std::string_view, std::string_view) {
            return boxes > 0 ? "" : "Neues";
        };
        platform.ShowSave = [](const auto& folders, std::string_view) {
            return folders / "Laden.html";
        };
        platform.OpenInViewer = [](const auto&) {};
        platform.Browser.SetVisible = [](bool) {};
        platform.Browser.Navigate = [this](const auto&) { window.print.PreviewReady = true; };
        platform.Browser.Print = [] { return true; };
        platform.ProcessEvents = [] { return true; };
        platform.SetWaitPointer = [](bool) {};
        platform.FocusItemName = platform.FocusItemUnit = [] {};
    }

    void Start() { StartUp(window, platform); }

    void SaveNew() {
        if (!Open("Kleidung"))
            return;
        StartNewItem(editor, platform);
        EditItemText(editor, NameText, "Kapuze");
        EditItemText(editor, WeightText, "3");
        EditItemText(editor, PriceText, "7");
        editor.cmbItemPreis.Select(1);
        ChooseItemWert(editor, 1);
        SaveItem(editor, platform);
    }

    void SaveChanged() {
        if (!OpenRow("Kleidung"))
            return;
        EditItemText(editor, DescriptionText, "Geflickt");
        SaveItem(editor, platform);
    }

    void Move() {
        if (!OpenRow("Kleidung"))
            return;
        editor.cmbItemKategorien.Select(PlaceOf(editor.cmbItemKategorien, "Öllampen"_ansi));
        SaveItem(editor, platform);
    }

    void Delete() {
        if (OpenRow("Kleidung"))
            ConfirmDeleteItem(editor, platform);
    }

    void AddCategory() {
        if (ReadList())
            NewCategory(editor, platform);
    }

    void RemoveCategory() {
        if (Open("Abakus"))
            DeleteCategory(editor, platform);
    }

    void Export() {
        FillShop();
        ExportShop(window.shop, platform);
    }

    void Print() {
        FillShop();
        PrintTempDocument(window.print, platform,
                          [this](std::string& file) { WriteShopPrint(window.shop, file); });
    }

private:
    void TellBox(std::string_view text) {
        ++boxes;
        std::string line(text);
        std::replace(line.begin(), line.end(), '\n', ' ');
        std::cout << line << std::endl;
    }

    // The steps before a command; false if a box has told why the user can't go on.
    bool ReadList() {
        std::vector<std::string> faults;
        ReadCategoryList(editor, platform.disk, faults);
        if (!faults.empty())
            platform.ShowMessage(FaultsText(faults));
        return boxes == 0;
    }

    bool Open(std::string_view category) {
        if (!ReadList())
            return false;
        ChooseCategory(editor, platform, PlaceOf(editor.cmbKategorien, category));
        return boxes == 0;
    }

    bool OpenRow(std::string_view category) {
        if (!Open(category))
            return false;
        ChooseItemRow(editor, platform, 1);
        return boxes == 0;
    }

    void FillShop() {
        window.shop.txtName.text = "Zum vollen Fass";
        for (int i = 0; i < 300; ++i)
            AddShopRow(window.shop, MakeShopRow({"Fackel2", "5", "2H", "", "BO|GA|"}));
    }

    Platform platform;
    frmEmporiumMain window;
    ItemEditor& editor = window.items;
    int boxes = 0;
};

int Run(const std::filesystem::path& folder, const std::string& operation) {
    static const std::map<std::string, void (FileWork::*)()> operations = {
        {"start", &FileWork::Start},
        {"save-new", &FileWork::SaveNew},
        {"save-changed", &FileWork::SaveChanged},
        {"move", &FileWork::Move},
        {"delete", &FileWork::Delete},
        {"new-category", &FileWork::AddCategory},
        {"delete-category", &FileWork::RemoveCategory},
        {"export", &FileWork::Export},
        {"print", &FileWork::Print}};
    const auto found = operations.find(operation);
    if (found == operations.end()) {
        std::cerr << "no such operation: " << operation << '\n';
        return 2;
    }
    FileWork work(folder);
    (work.*found->second)();
    return 0;
}

} // namespace
} // namespace emporium::test

int main(int count, char** arguments) {
    if (count == 3)
        return emporium::test::Run(arguments[1], arguments[2]);
    std::cerr << "file_work FOLDER OPERATION\n";
    return 2;
}
