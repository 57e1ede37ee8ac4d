#include "itemeditor/ItemList.h"

#include "base/Ansi.h"
#include "itemeditor/ItemForm.h"
#include "support/EditorAtWork.h"

#include <gtest/gtest.h>

namespace emporium::test {
namespace {

TEST(ItemList, EveryClickTurnsTheDirectionRound) {
    const struct {
        std::vector<int> clicks;
        std::string_view rows;
    } cases[] = {
        {{}, "Ärmel Mantel mantel Zopf"_ansi},
        {{ItemNameColumn}, "Zopf mantel Mantel Ärmel"_ansi},
        {{ItemNameColumn, ItemNameColumn}, "Ärmel Mantel mantel Zopf"_ansi},
        {{ItemPriceColumn}, "Ärmel Zopf Mantel mantel"_ansi}, // 5S 5S 20D 100D
        {{ItemNameColumn, ItemPriceColumn}, "mantel Mantel Ärmel Zopf"_ansi},
        {{ItemPriceColumn, ItemNameColumn}, "Ärmel Mantel mantel Zopf"_ansi},
    };
    for (const auto& c : cases) {
        EditorAtWork world;
        world.View("Kleidung");
        for (const int column : c.clicks)
            SortItemList(world.editor, column);
        EXPECT_EQ(world.Rows(), c.rows);
        world.View("Abakus");
        world.View("Kleidung");
        EXPECT_EQ(world.Rows(), c.rows) << "the order outlasts the view";
    }
}

TEST(ItemList, AChangedRowMovesToItsPlaceAndStaysChosen) {
    EditorAtWork world;
    world.View("Kleidung");
    for (const auto& [name, rows] : {std::pair{"Aal"_ansi, "Aal Ärmel Mantel mantel"_ansi},
                                     {"Zz"_ansi, "Ärmel Mantel mantel Zz"_ansi},
                                     {"Mantel"_ansi, "Ärmel Mantel Mantel mantel"_ansi}}) {
        const unsigned revision = world.editor.lvGegenstände.revision;
        world.Open(3);
        EXPECT_EQ(world.editor.lvGegenstände.toolTip, ItemName(world.editor.Record(3)));
        EditItemText(world.editor, NameText, std::string(name));
        world.Save();
        EXPECT_EQ(world.Rows(), rows);
        EXPECT_EQ(ItemName(world.editor.Record(world.editor.CurrentItemRow)), name);
        EXPECT_GT(world.editor.lvGegenstände.revision, revision) << "the window sees no change";
    }
}

} // namespace
} // namespace emporium::test
