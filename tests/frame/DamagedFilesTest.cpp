#include "base/Ansi.h"
#include "base/Subs.h"
#include "frame/frmEmporiumMain.h"
#include "generator/ShopGeneration.h"
#include "itemeditor/CategoryChoice.h"
#include "shopeditor/ShopPricing.h"
#include "support/FaultyFiles.h"
#include "support/ProgramFolder.h"
#include "support/ScriptedPlatform.h"

#include <gtest/gtest.h>

#include <map>

namespace emporium::test {
namespace {

namespace fs = std::filesystem;

using Damage = std::string (*)(std::string bytes);

std::string WithLf(const std::string& bytes) {
    std::string text;
    for (const char c : bytes)
        if (c != '\r')
            text += c;
    return text;
}

const std::pair<const char*, Damage> Damages[] = {
    {"empty", [](std::string) { return std::string(); }},
    {"cut in a line", [](std::string b) { return b.substr(0, b.size() / 2 + 1); }},
    {"without the last line end", [](std::string b) { return b.substr(0, b.size() - 2); }},
    {"LF ends", [](std::string b) { return WithLf(b); }},
    {"another first line", [](std::string b) { return "99999\r\n" + b; }},
    {"undefined bytes", [](std::string b) { return b.insert(b.size() / 3, "\x81\0\x8D\xFF"); }},
    {"one endless line", [](std::string b) { return std::string(b.size() * 9, 'x'); }}};

// The shipped data, and what a user does with all of them.
struct Evening {
    Evening() {
        fs::remove_all(program.folders.DataFolder);
        fs::copy(STARTER_DATA, program.folders.DataFolder, fs::copy_options::recursive);
        auto& platform = script.platform;
        platform.files = QuickFiles();
        platform.ShowMessage = [this](std::string_view) { ++boxes; };
        platform.AskYesNo = [](const YesNoBox&) { return true; };
        platform.RollDice = [this](std::int32_t n) { return dice.RollDice(n); };
    }

    // The boxes of one command.
    template <typename Command> int Boxes(Command command) {
        boxes = 0;
        command();
        return boxes;
    }

    void Play() {
        frmEmporiumMain window;
        const auto& platform = script.platform;
        EXPECT_LE(Boxes([&] { StartUp(window, platform, program.root); }), 1);
        const Folders& folders = window.folders;
        ItemEditor& items = window.items;
        ShopEditor& shop = window.shop;
        frmEmporiumGenerator& generator = window.generator;
        for (int i = 0; i < static_cast<int>(items.cmbKategorien.Entries().size()); i += 9)
            EXPECT_LE(Boxes([&] { ChooseCategory(items, platform, folders, i); }), 1);
        for (int race = 0; race < static_cast<int>(shop.cmbRasse.Entries().size()); ++race) {
            shop.cmbRasse.Select(race);
            EXPECT_LE(Boxes([&] { DrawOwnerName(shop, platform, folders); }), 1);
        }
        EXPECT_LE(Boxes([&] { OpenGenerator(generator, shop, platform, folders); }), 1);
        ChooseGeneratorPrices(generator, 2);
        ChooseGeneratorQuality(generator, 4);
        EXPECT_LE(Boxes([&] { ChooseGeneratorRegion(generator, platform, folders, 3); }), 1);
        TickShopRegion(generator, true);
        for (int type = 0; type < static_cast<int>(generator.cmbShopBeruf.Entries().size());
             type += 25) {
            ChooseShopType(generator, type);
            EXPECT_LE(
                Boxes([&] { GenerateShop(generator, shop, window.regions, platform, folders); }),
                1);
        }
    }

    std::map<fs::path, std::string> Files() const {
        std::map<fs::path, std::string> files;
        for (const auto& entry : fs::recursive_directory_iterator(program.folders.DataFolder))
            if (entry.is_regular_file())
                files[entry.path()] = SystemFiles().read(entry.path()).bytes;
        return files;
    }

    ProgramFolder program;
    ScriptedPlatform script;
    Dice dice{[] { return 0.5F; }};
    int boxes = 0;
};

// The import may fill a category, but only behind what stands there.
void ExpectUntouched(const Evening& evening, const std::map<fs::path, std::string>& before) {
    for (const auto& [file, bytes] : evening.Files()) {
        const auto found = before.find(file);
        const std::string old = found == before.end() ? "" : found->second;
        const bool imported = IsFixedCategory(FromPath(file.stem())) &&
                              file.parent_path() == evening.program.folders.EmporiumFolder();
        EXPECT_TRUE(bytes == old || (imported && bytes.starts_with(old))) << file;
        EXPECT_TRUE(found != before.end() || imported) << file;
    }
}

void Write(const fs::path& file, const std::string& bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}

TEST(DamagedFiles, AnyFileMayBeInAnyStateAndNothingIsAltered) {
    Evening evening;
    const auto sound = evening.Files();
    ASSERT_GT(sound.size(), 50U);
    for (const auto& [file, bytes] : sound) {
        SCOPED_TRACE(file.filename());
        const auto play = [&](const char* what) {
            SCOPED_TRACE(what);
            const auto before = evening.Files();
            evening.Play();
            ExpectUntouched(evening, before);
        };
        for (const auto& [what, damage] : Damages) {
            Write(file, damage(bytes));
            play(what);
        }
        fs::remove(file);
        play("missing");
        fs::remove(file);
        fs::create_directory(file);
        play("a folder in its place");
        fs::remove(file);
        for (const auto& [other, otherBytes] : sound)
            if (!fs::exists(other) || fs::file_size(other) != otherBytes.size())
                Write(other, otherBytes);
    }
}

} // namespace
} // namespace emporium::test
