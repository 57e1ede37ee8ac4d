#include "store/WriteTurn.h"
#include "support/EditorAtWork.h"

#include <gtest/gtest.h>

namespace emporium::test {
namespace {

// Runs the act in worlds of their own, each with a trouble in another call of the world.program.
// Nothing is changed but under the lock. A failure is told with its reason, and files, records and
// controls stand as before, or as without it; after a restart the disk holds what the window shows,
// and nothing is lost or doubled if the program was killed.
void ExpectAllOrNothing(const std::function<void(EditorAtWork&)>& prepare,
                        const std::function<void(EditorAtWork&)>& act) {
    EditorAtWork whole;
    prepare(whole);
    const auto filesBefore = whole.Files();
    const auto stateBefore = whole.State();
    act(whole);
    const auto filesAfter = whole.Files();
    const auto stateAfter = whole.State();
    const auto tries = [&](Trouble trouble, int n, int second) {
        SCOPED_TRACE(second);
        EditorAtWork world;
        prepare(world);
        std::string told;
        world.script.platform.ShowMessage = [&told](std::string_view text) { told += text; };
        const bool reached = world.program.Suffer(trouble, n, second, [&] { act(world); });
        world.script.Forget();
        world.program.Restart(trouble);
        EXPECT_TRUE(InTurn(world.script.platform.disk, [] { return Outcome{true, {}}; }).stands);
        EXPECT_FALSE(world.program.unguarded);
        const bool stands = world.Files() == filesAfter;
        EXPECT_TRUE(stands || world.Files() == filesBefore);
        if (trouble < Trouble::Killed) {
            const auto said = told.find(stands ? "konnte nicht" : "kein Platz");
            EXPECT_EQ(said == told.npos, stands) << told;
            EXPECT_EQ(world.State(), stands ? stateAfter : stateBefore);
        }
        return reached;
    };
    Sweep([&](Trouble trouble, int n) {
        const bool reached = tries(trouble, n, 0);
        for (int second = n + 1; trouble == Trouble::Fails && reached && second < n + 12; ++second)
            tries(trouble, n, second);
        return reached;
    });
}

// A way of saving the Hat: from a view, in place of the coat or as a new item, with a category in
// the form, and perhaps with a Yes to the question whether the item moves.
struct Road {
    std::string_view view, open, formCategory;
    bool moves;
};

const Road Roads[] = {
    {"Kleidung", "", "Kleidung", false},    {"Kleidung", "", "Fernwaffen", false},
    {"Abakus", "", "Alles", false},         {"Alles", "", "Nahkampfwaffen", false},
    {"Kleidung", "mantel", "Alles", false}, {"Alles", "mantel", "Abakus", false},
    {"Kleidung", "mantel", "Abakus", true}, {"Kleidung", "mantel", "Nahkampfwaffen", true},
};

TEST(AllOrNothing, AFailureChangesNothingOnAnyRoad) {
    for (const Road& road : Roads)
        ExpectAllOrNothing(
            [&](EditorAtWork& world) {
                world.View(road.view);
                if (!road.open.empty())
                    world.Open(road.open);
                world.FormCategory(road.formCategory);
                world.Fill(Hat);
            },
            [&](EditorAtWork& world) {
                if (road.moves)
                    world.script.ExpectYesNo(MoveQuestion, true);
                world.Save();
            });
    for (const std::string_view view : {"Alles", "Kleidung"})
        ExpectAllOrNothing(
            [&](EditorAtWork& world) {
                world.View(view);
                world.Open("Zopf");
            },
            [](EditorAtWork& world) { world.Delete(true); });
    const auto empty = [](EditorAtWork& world) { world.View("Abakus"); };
    ExpectAllOrNothing(empty, [](EditorAtWork& world) {
        world.script.ExpectText(NamePrompt, "Zelte");
        NewCategory(world.editor, world.script.platform);
    });
    ExpectAllOrNothing(empty, [](EditorAtWork& world) {
        world.script.ExpectYesNo(DeleteCategoryQuestion, true);
        DeleteCategory(world.editor, world.script.platform);
    });
}

} // namespace
} // namespace emporium::test
