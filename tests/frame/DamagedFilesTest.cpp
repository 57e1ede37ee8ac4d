#include "frame/frmEmporiumMain.h"
#include "generator/ShopGeneration.h"
#include "itemeditor/CategoryChoice.h"
#include "itemeditor/ItemForm.h"
#include "itemeditor/ItemSaving.h"
#include "shopeditor/ShopPricing.h"
#include "support/EditorAtWork.h"
#include "support/FaultyFiles.h"
#include "support/ProgramFolder.h"
#include "text/Ansi.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace emporium::test {
namespace {

namespace fs = std::filesystem;

// So many different lines that no list takes them.
std::string WithNumbers(std::string text) {
    for (int i = 0; i < 33'000; ++i)
        text += std::to_string(i) + "\r\n";
    return text;
}

using Damage = std::function<void(const fs::path& file)>;

template <typename Change> Damage Bytes(Change change) {
    return [change](const fs::path& file) {
        const std::string bytes = change(SystemFiles().read(file).bytes);
        std::ofstream(file, std::ios::binary) << bytes;
    };
}

const std::pair<const char*, Damage> Damages[] = {
    {"missing", [](const fs::path& file) { fs::remove(file); }},
    {"a folder", [](const fs::path& file) { fs::remove(file), fs::create_directory(file); }},
    {"empty", Bytes([](const std::string&) { return ""; })},
    {"cut in a line", Bytes([](const std::string& b) { return b.substr(0, b.size() / 2 + 1); })},
    {"no last line end", Bytes([](const std::string& b) { return b.substr(0, b.size() - 2); })},
    {"LF ends", Bytes([](std::string b) { return std::erase(b, '\r'), b; })},
    {"another first line", Bytes([](const std::string& b) { return "99999\r\n" + b; })},
    {"undefined bytes",
     Bytes([](std::string b) { return b.insert(b.size() / 3, "\x81\0\x8D\xFF", 4); })},
    {"zeros", Bytes([](const std::string& b) { return std::string(b.size() * 9, '\0'); })},
    {"endless numbers", Bytes(WithNumbers)}};

// The shipped data, one file of which is damaged, and what a user does with all of them.
class Evening {
public:
    Evening() {
        fs::remove_all(program_.folders.DataFolder);
        fs::copy(STARTER_DATA, program_.folders.DataFolder, fs::copy_options::recursive);
        platform_.files = QuickFiles();
        platform_.ShowMessage = [this](std::string_view text) {
            ++boxes_;
            told.append(text);
        };
        platform_.AskYesNo = [](const YesNoBox&) { return true; };
        platform_.RollDice = [this](std::int32_t n) { return dice_.RollDice(n); };
        platform_.ShowGeneratorDialog = platform_.FocusItemName = [] {};
        platform_.SetWaitPointer = [](bool) {};
    }

    fs::path File(const fs::path& name) const { return program_.folders.DataFolder / name; }

    std::map<fs::path, std::string> Files() const {
        std::map<fs::path, std::string> files;
        for (const auto& entry : fs::recursive_directory_iterator(program_.folders.DataFolder))
            if (entry.is_regular_file())
                files[entry.path()] = SystemFiles().read(entry.path()).bytes;
        return files;
    }

    void Play() {
        Do([&] { StartUp(window_, platform_, program_.root); });
        for (int i = 0; i < std::ssize(items_.cmbKategorien.Entries());
             i += StepOf(items_.cmbKategorien))
            SaveIn(i);
        SaveIn(PlaceOf(items_.cmbKategorien, AllCategories));
        for (int race = 0; race < std::ssize(shop_.cmbRasse.Entries()); ++race) {
            ChooseRace(shop_, race);
            Do([&] { DrawOwnerName(shop_, platform_, folders_); });
        }
        Do([&] { OpenGenerator(generator_, shop_, platform_, folders_); });
        ChooseGeneratorPrices(generator_, 2);
        ChooseGeneratorQuality(generator_, 4);
        Do([&] { ChooseGeneratorRegion(generator_, platform_, folders_, 3); });
        TickShopRegion(generator_, true);
        for (int i = 0; i < std::ssize(generator_.cmbShopBeruf.Entries());
             i += StepOf(generator_.cmbShopBeruf)) {
            ChooseShopType(generator_, i);
            Do([&] { GenerateShop(generator_, shop_, window_.regions, platform_, folders_); });
        }
    }

    std::string told; // in all boxes

private:
    // One command, which says what is wrong in a single box.
    template <typename Command> void Do(Command command) {
        boxes_ = 0;
        command();
        EXPECT_LE(boxes_, 1);
    }

    // A few of a list, however long that is.
    static int StepOf(const ChoiceList& list) {
        return 1 + static_cast<int>(list.Entries().size()) / 2;
    }

    void SaveIn(int category) {
        Do([&] { ChooseCategory(items_, platform_, folders_, category); });
        StartNewItem(items_, platform_);
        EditItemText(items_, NameText, "Kapuze");
        EditItemText(items_, PriceText, "7");
        items_.cmbItemPreis.Select(1);
        ChooseItemWert(items_, 1);
        Do([&] { SaveItem(items_, platform_, folders_); });
    }

    ProgramFolder program_;
    Platform platform_;
    Dice dice_{[] { return 0.5F; }};
    frmEmporiumMain window_;
    const Folders& folders_ = window_.folders;
    ItemEditor& items_ = window_.items;
    ShopEditor& shop_ = window_.shop;
    frmEmporiumGenerator& generator_ = window_.generator;
    int boxes_ = 0;
};

bool IsCategory(const fs::path& file) {
    return file.parent_path().filename() == "Emporium" &&
           !FromPath(file.filename()).starts_with("Shopgenerator") &&
           file.filename() != "ItemKategorien.dat";
}

bool HoldsWholeItems(const std::string& bytes) {
    const auto ends = std::count(bytes.begin(), bytes.end(), '\n');
    return (ends + (bytes.empty() || bytes.ends_with('\n') ? 0 : 1)) % 5 == 0;
}

// Import and new items may fill a category, but only behind what stands there.
void ExpectOnlyAdditions(const std::map<fs::path, std::string>& before,
                         const std::map<fs::path, std::string>& after) {
    for (const auto& [file, bytes] : before)
        EXPECT_TRUE(after.contains(file)) << file;
    for (const auto& [file, bytes] : after) {
        const auto found = before.find(file);
        const std::string old = found == before.end() ? "" : found->second;
        if (found != before.end() && bytes == old)
            continue;
        EXPECT_TRUE(IsCategory(file) && bytes.starts_with(old)) << file;
        EXPECT_TRUE(HoldsWholeItems(old)) << file;
        EXPECT_TRUE(HoldsWholeItems(bytes)) << file;
    }
}

TEST(DamagedFiles, AnyFileMayBeInAnyStateAndNothingIsAltered) {
    for (const auto& entry : fs::recursive_directory_iterator(STARTER_DATA)) {
        if (entry.is_directory())
            continue;
        for (const auto& [what, damage] : Damages) {
            const auto name = entry.path().lexically_relative(STARTER_DATA);
            SCOPED_TRACE(name.string() + " " + what);
            Evening evening;
            damage(evening.File(name));
            const auto before = evening.Files();
            evening.Play();
            ExpectOnlyAdditions(before, evening.Files());
            const bool isTold = name.parent_path() != "Emporium" ||
                                evening.told.find(FromPath(name.filename())) != std::string::npos;
            EXPECT_TRUE(isTold || !fs::is_directory(evening.File(name)));
        }
    }
}

} // namespace
} // namespace emporium::test
