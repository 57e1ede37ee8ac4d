// The generator, the orders of the lists and the largest document.
#include "Table.h"
#include "World.h"

#include "documents/ShopDocument.h"
#include "generator/ShopGeneration.h"
#include "itemeditor/CategoryChoice.h"
#include "itemeditor/ItemList.h"

#include <algorithm>
#include <array>

namespace emporium::bench {
namespace {

// A generator run over all of a world's items.
class GeneratorRun {
public:
    GeneratorRun(std::int64_t items, bool regionCounts)
        : world_(static_cast<int>(items), Categories), regionCounts_(regionCounts) {
        world_.platform.RollDice = [this](std::int32_t n) {
            ++throws;
            return dice_.RollDice(n);
        };
    }

    void Prepare() {
        ClearShop(shop_); // as the dialog does when it opens
        dialog_ = frmEmporiumGenerator();
        dialog_.cmbShopBeruf.Add("Alles");
        ChooseShopType(dialog_, 0);
        ChooseGeneratorPrices(dialog_, 3);
        ChooseGeneratorQuality(dialog_, 2);
        TickShopRegion(dialog_, regionCounts_);
        dialog_.cmbShopRegion.Select(3);
    }

    void Run() { GenerateShop(dialog_, shop_, world_.platform); }

    std::int64_t throws = 0;

private:
    World world_;
    bool regionCounts_;
    Dice dice_{SecondsSinceMidnight};
    ShopEditor shop_;
    frmEmporiumGenerator dialog_;
};

void Generate(bool regionCounts, benchmark::State& state) {
    GeneratorRun run(state.range(0), regionCounts);
    for (auto _ : state) {
        state.PauseTiming();
        run.Prepare();
        state.ResumeTiming();
        run.Run();
    }
}

// As many throws as a run takes.
void ThrowDice(bool regionCounts, benchmark::State& state) {
    GeneratorRun run(state.range(0), regionCounts);
    run.Prepare();
    run.Run();
    Dice dice(SecondsSinceMidnight);
    for (auto _ : state)
        for (std::int64_t i = 0; i < run.throws; ++i)
            benchmark::DoNotOptimize(dice.RollDice(6));
}

ItemEditor AllItems(std::int64_t items) {
    const World world(static_cast<int>(items), Categories);
    ItemEditor editor;
    editor.cmbKategorien.Select(0);
    LoadItems(editor, world.platform);
    return editor;
}

// By name and by price in turn.
template <typename Editor>
void Sort(benchmark::State& state, Editor editor, void (*sort)(Editor&, int), int priceColumn) {
    int column = 0;
    for (auto _ : state)
        sort(editor, column = priceColumn - column);
}

// The texts of both columns in turn, as they are.
void BoundSort(benchmark::State& state) {
    std::array<std::vector<std::string>, 2> keys;
    for (int i = 0; i < state.range(0); ++i) {
        keys[0].push_back(World::Record(i)[NameField]);
        keys[1].push_back(World::Record(i)[PriceField]);
    }
    std::size_t column = 0;
    for (auto _ : state) {
        column = 1 - column;
        std::vector<std::string_view> sorted(keys[column].begin(), keys[column].end());
        std::sort(sorted.begin(), sorted.end());
        benchmark::DoNotOptimize(sorted);
    }
}

void WriteDocument(benchmark::State& state) {
    const ShopEditor shop = FilledShop(state.range(0));
    std::string document;
    for (auto _ : state) {
        document.clear();
        WriteShopPrint(shop, document);
        benchmark::DoNotOptimize(document);
    }
}

using State = benchmark::State;

const std::vector<Measurement> Measurements = {
    {"Generator", "BoundDice", std::bind_front(Generate, false)},
    {"BoundDice", "", std::bind_front(ThrowDice, false)},
    {"GeneratorWithRegion", "BoundDiceWithRegion", std::bind_front(Generate, true)},
    {"BoundDiceWithRegion", "", std::bind_front(ThrowDice, true)},
    {"SortShop", "BoundSort",
     [](State& s) { Sort(s, FilledShop(s.range(0)), SortShopList, ShopPriceColumn); }},
    {"SortItems", "BoundSort",
     [](State& s) { Sort(s, AllItems(s.range(0)), SortItemList, ItemPriceColumn); }},
    {"BoundSort", "", BoundSort},
    {"ShopPrint", "", WriteDocument}};

} // namespace
} // namespace emporium::bench

int main(int argc, char** argv) {
    emporium::bench::RunAll(argc, argv, emporium::bench::Measurements);
}
