// The generator, prices and orders, each beside the bound that it is measured against.
#include "World.h"

#include "base/GermanOrder.h"
#include "documents/ShopDocument.h"
#include "generator/ShopGeneration.h"
#include "itemeditor/CategoryChoice.h"
#include "itemeditor/ItemList.h"
#include "itemeditor/ItemSaving.h"
#include "shopeditor/ShopList.h"
#include "shopeditor/ShopPricing.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>

namespace emporium::bench {
namespace {

constexpr int Categories = 50;

float Clock() {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return static_cast<float>(now.tv_sec % 86400) + static_cast<float>(now.tv_nsec) * 1e-9F;
}

void Sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->Arg(500)->Arg(5000)->Arg(32767)->Unit(benchmark::kMillisecond);
}

ShopEditor FilledShop(int rows) {
    ShopEditor shop;
    for (int i = 0; i < rows; ++i) {
        const ItemRecord r = World::Record(i);
        shop.lvLaden.rows.push_back(
            MakeShopRow(r[NameField], r[WeightField], r[PriceField], r[AvailabilityField]));
    }
    ArrangeShopList(shop);
    return shop;
}

void RunGenerator(benchmark::State& state, bool regionCounts) {
    World world(static_cast<int>(state.range(0)), Categories);
    Dice dice(Clock);
    world.platform.RollDice = [&dice](std::int32_t n) { return dice.RollDice(n); };
    RegionTable regions = RegionInit();
    ShopEditor shop;
    for (auto _ : state) {
        state.PauseTiming();
        ClearShop(shop); // as the dialog does when it opens
        frmEmporiumGenerator dialog;
        dialog.cmbShopBeruf.Add("Alles");
        ChooseShopType(dialog, 0);
        ChooseGeneratorPrices(dialog, 3);
        ChooseGeneratorQuality(dialog, 2);
        TickShopRegion(dialog, regionCounts);
        dialog.cmbShopRegion.Select(3);
        state.ResumeTiming();
        GenerateShop(dialog, shop, regions, world.platform, world.folders);
        benchmark::DoNotOptimize(shop.ShopCount());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void Generator(benchmark::State& state) {
    RunGenerator(state, false);
}
void GeneratorWithRegion(benchmark::State& state) {
    RunGenerator(state, true);
}

void BoundDice(benchmark::State& state) {
    Dice dice(Clock);
    for (auto _ : state)
        for (std::int64_t i = 0; i < state.range(0); ++i)
            benchmark::DoNotOptimize(dice.RollDice(6));
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void PriceLevel(benchmark::State& state) {
    ShopEditor shop = FilledShop(static_cast<int>(state.range(0)));
    int level = 0;
    for (auto _ : state)
        ChoosePriceLevel(shop, level++ % 5);
}

void SortShop(benchmark::State& state) {
    ShopEditor shop = FilledShop(static_cast<int>(state.range(0)));
    int column = 0;
    for (auto _ : state)
        SortShopList(shop, column = ShopPriceColumn - column);
}

void AddShopRows(benchmark::State& state) {
    for (auto _ : state) {
        ShopEditor shop;
        for (int i = 0; i < state.range(0); ++i) {
            const ItemRecord r = World::Record(i);
            AddShopRow(shop, MakeShopRow(r[NameField], r[WeightField], r[PriceField],
                                         r[AvailabilityField]));
        }
        benchmark::DoNotOptimize(shop.ShopCount());
    }
}

void RemoveShopRows(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        ShopEditor shop = FilledShop(static_cast<int>(state.range(0)));
        state.ResumeTiming();
        ChooseShopRow(shop, 0);
        while (shop.ShopCount() > 0)
            RemoveShopRow(shop);
    }
}

void ExportDocument(benchmark::State& state) {
    const ShopEditor shop = FilledShop(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        std::string document;
        WriteShopExport(shop, document);
        benchmark::DoNotOptimize(document);
    }
}

void SortItems(benchmark::State& state) {
    World world(static_cast<int>(state.range(0)), Categories);
    ItemEditor editor;
    LoadItems(editor, world.platform, world.folders);
    editor.cmbKategorien.Select(0);
    LoadItems(editor, world.platform, world.folders);
    int column = 0;
    for (auto _ : state)
        SortItemList(editor, column = ItemPriceColumn - column);
}

void BoundSort(benchmark::State& state) {
    std::vector<std::string> keys;
    for (int i = 0; i < state.range(0); ++i)
        keys.push_back(World::Record(i)[NameField]);
    for (auto _ : state) {
        std::vector<std::string> sorted = keys;
        std::sort(sorted.begin(), sorted.end());
        benchmark::DoNotOptimize(sorted);
    }
}

BENCHMARK(Generator)->Apply(Sizes);
BENCHMARK(GeneratorWithRegion)->Apply(Sizes);
BENCHMARK(BoundDice)->Apply(Sizes);
BENCHMARK(PriceLevel)->Apply(Sizes);
BENCHMARK(SortShop)->Apply(Sizes);
BENCHMARK(SortItems)->Apply(Sizes);
BENCHMARK(BoundSort)->Apply(Sizes);
BENCHMARK(AddShopRows)->Apply(Sizes);
BENCHMARK(RemoveShopRows)->Apply(Sizes);
BENCHMARK(ExportDocument)->Apply(Sizes);

} // namespace
} // namespace emporium::bench
