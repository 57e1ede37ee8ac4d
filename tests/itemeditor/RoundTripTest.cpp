#include "support/EditorAtWork.h"

#include <gtest/gtest.h>

namespace emporium::test {
namespace {

// Opens and saves every record of every view: unchanged, and changed in each line and back again.
void ExpectSameBytes(EditorAtWork& world) {
    const auto files = world.Files();
    auto views = world.editor.CategoryNames;
    views.emplace_back(AllCategories);
    for (const std::string& view : views) {
        world.View(view);
        const auto records = world.Records();
        for (int row = 0; row < world.editor.ItemCount(); ++row) {
            world.Open(row);
            EXPECT_TRUE(world.editor.cmdItemSave.enabled) << world.editor.txtItem[NameText].text;
            world.Save();
        }
        const int step = 1 + world.editor.ItemCount() / 3;
        for (int row = 0; row < world.editor.ItemCount(); row += step)
            for (const ItemRecord& record :
                 {ItemRecord{"Zwischendurch1", "7", "8H", "anders", "FI|"},
                  records[static_cast<std::size_t>(row)]}) {
                world.Open(row);
                world.Fill(record);
                world.Save();
            }
        EXPECT_TRUE(world.Files() == files) << view;
        EXPECT_EQ(world.Records(), records) << view;
    }
}

TEST(RoundTrip, OddButSoundRecordsAndTheShippedFiles) {
    namespace fs = std::filesystem;
    EditorAtWork world;
    ExpectSameBytes(world);
    fs::remove_all(world.program.folders.DataFolder);
    fs::copy(STARTER_DATA, world.program.folders.DataFolder, fs::copy_options::recursive);
    world.ReadList();
    EXPECT_GT(world.editor.CategoryNames.size(), 3U);
    for (const std::string& name : world.editor.CategoryNames)
        EXPECT_FALSE(world.File(name).empty()) << name;
    ExpectSameBytes(world);
}

} // namespace
} // namespace emporium::test
