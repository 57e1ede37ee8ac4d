// Carries out one operation on a program folder, through the control states as a user would:
// file_work FOLDER OPERATION. Every question is answered with Yes; what a box says goes to the
// standard output as it is, one line each, behind the line of the command that it belongs to.
// faults.py starts this program under faults from outside and looks at what is left on the disk.
#include "base/Ansi.h"
#include "base/FileFailure.h"
#include "documents/PrintHost.h"
#include "documents/ShopDocument.h"
#include "frame/frmEmporiumMain.h"
#include "generator/ShopGeneration.h"
#include "itemeditor/CategoryChoice.h"
#include "itemeditor/ItemForm.h"
#include "itemeditor/ItemList.h"
#include "itemeditor/ItemSaving.h"
#include "shopeditor/ShopList.h"
#include "shopeditor/ShopPricing.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <map>

namespace emporium::test {
namespace {

int PlaceOf(const ChoiceList& list, std::string_view entry) {
    const auto found = std::find(list.Entries().begin(), list.Entries().end(), entry);
    return found == list.Entries().end() ? -1 : static_cast<int>(found - list.Entries().begin());
}

constexpr std::size_t MostViews = 100;

class FileWork {
public:
    explicit FileWork(const std::filesystem::path& folder) {
        window.folders = InitFolders(folder);
        platform.files = SystemFiles();
        platform.RollDice = [](std::int32_t sides) { return 1 + std::rand() % std::max(sides, 1); };
        platform.AskYesNo = [](const YesNoBox&) { return true; };
        platform.ShowMessage = [this](std::string_view text) { TellBox(text); };
        platform.AskText = [this](std::string_view) { return boxes > 0 ? "" : "Neues"; };
        platform.ShowSave = [](const auto& folders, std::string_view) {
            return folders / "Laden.html";
        };
        platform.OpenInViewer = [](const auto&) {};
        platform.Browser.SetVisible = [](bool) {};
        platform.Browser.Navigate = [this](const auto&) { window.print.PreviewReady = true; };
        platform.Browser.Print = [] { return true; };
        platform.ProcessEvents = [] { return true; };
        platform.ShowGeneratorDialog = [this] { ComputeShop(); };
        platform.SetWaitPointer = [](bool) {};
        platform.FocusItemName = [] {};
    }

    void Start() {
        Command("start");
        StartUp(window, platform, window.folders.DataFolder.parent_path());
    }

    void SaveNew() {
        if (!Open("Kleidung"))
            return;
        Command("save");
        FillNewItem();
        SaveItem(editor, platform, window.folders);
    }

    void SaveChanged() {
        if (!OpenRow("Kleidung"))
            return;
        Command("save");
        EditItemText(editor, DescriptionText, "Geflickt");
        SaveItem(editor, platform, window.folders);
    }

    void Move() {
        if (!OpenRow("Kleidung"))
            return;
        Command("move");
        editor.cmbItemKategorien.Select(PlaceOf(editor.cmbItemKategorien, "Öllampen"_ansi));
        SaveItem(editor, platform, window.folders);
    }

    void Delete() {
        if (!OpenRow("Kleidung"))
            return;
        Command("delete");
        ConfirmDeleteItem(editor, platform, window.folders);
    }

    void AddCategory() {
        if (!ReadList())
            return;
        Command("new category");
        NewCategory(editor, platform, window.folders);
    }

    void RemoveCategory() {
        if (!Open("Abakus"))
            return;
        Command("delete category");
        DeleteCategory(editor, platform, window.folders);
    }

    void Export() {
        FillShop();
        Command("export");
        ExportShop(window.shop, platform, window.folders);
    }

    void Print() {
        FillShop();
        Command("print");
        PrintTempDocument(window.print, platform, window.folders,
                          [this](std::string& file) { WriteShopPrint(window.shop, file); });
    }

    /// All that reads the files below Data, and a new item in the first category that takes it.
    void Tour() {
        Start();
        const auto entries = editor.cmbKategorien.Entries();
        for (std::size_t i = 0; i < entries.size(); i += 1 + entries.size() / MostViews) {
            Command("view " + entries[i]);
            View(entries[i]);
        }
        Command("view");
        View(AllCategories);
        Command("generator");
        OpenGenerator(window.generator, window.shop, platform, window.folders);
        for (int race = 0; race < static_cast<int>(window.shop.cmbRasse.Entries().size()); ++race) {
            ChooseRace(window.shop, race);
            Command("owner " + window.shop.cmbRasse.Text());
            DrawOwnerName(window.shop, platform, window.folders);
        }
        Command("view");
        View("Werkzeug");
        Command("save");
        FillNewItem();
        SaveItem(editor, platform, window.folders);
    }

private:
    void TellBox(std::string_view text) {
        ++boxes;
        std::string line(text);
        std::replace(line.begin(), line.end(), '\n', ' ');
        std::cout << "BOX " << line << std::endl;
    }

    void Command(const std::string& name) {
        boxes = 0;
        std::cout << "COMMAND " << name << std::endl;
    }

    void View(std::string_view category) {
        ChooseCategory(editor, platform, window.folders, PlaceOf(editor.cmbKategorien, category));
    }

    // The steps before a command; false if a box has told why the user can't go on.
    bool ReadList() {
        Command("read the list");
        std::vector<std::string> faults;
        ReadCategoryList(editor, platform.files, window.folders, faults);
        if (!faults.empty())
            platform.ShowMessage(FaultsText(faults));
        return boxes == 0;
    }

    bool Open(std::string_view category) {
        if (!ReadList())
            return false;
        Command("choose");
        View(category);
        return boxes == 0;
    }

    bool OpenRow(std::string_view category) {
        if (!Open(category))
            return false;
        ChooseItemRow(editor, platform, window.folders, 1);
        return boxes == 0;
    }

    void FillNewItem() {
        StartNewItem(editor, platform);
        EditItemText(editor, NameText, "Kapuze");
        EditItemText(editor, WeightText, "3");
        EditItemText(editor, PriceText, "7");
        editor.cmbItemPreis.Select(1);
        ChooseItemWert(editor, 1);
    }

    void FillShop() {
        window.shop.txtName.text = "Zum vollen Fass";
        for (int i = 0; i < 300; ++i)
            AddShopRow(window.shop, MakeShopRow("Fackel2", "5", "2H", "BO|GA|"));
    }

    // What the user does in the generator dialog.
    void ComputeShop() {
        ChooseShopType(window.generator, 0);
        ChooseGeneratorPrices(window.generator, 1);
        ChooseGeneratorQuality(window.generator, 4);
        TickShopRegion(window.generator, true);
        ChooseGeneratorRegion(window.generator, platform, window.folders, 3);
        Command("compute");
        if (window.generator.cmdStart.enabled)
            GenerateShop(window.generator, window.shop, window.regions, platform, window.folders);
    }

    Platform platform;
    frmEmporiumMain window;
    ItemEditor& editor = window.items;
    int boxes = 0; // of the present command
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
        {"print", &FileWork::Print},
        {"tour", &FileWork::Tour}};
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
