// The generator, prices, orders, documents and names.
#include "Table.h"
#include "World.h"

#include "base/GermanOrder.h"
#include "documents/ItemListDocument.h"
#include "documents/ShopDocument.h"
#include "generator/GeneratorConfig.h"
#include "generator/ShopGeneration.h"
#include "itemeditor/CategoryChoice.h"
#include "itemeditor/ItemList.h"
#include "names/GenNameSub.h"
#include "shopeditor/ShopList.h"
#include "shopeditor/ShopPricing.h"

#include <algorithm>
#include <array>
#include <ctime>

namespace emporium::bench {
namespace {

constexpr int Categories = 50;

float Clock() {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return static_cast<float>(now.tv_sec % 86400) + static_cast<float>(now.tv_nsec) * 1e-9F;
}

std::unique_ptr<ShopRow> Ware(int number) {
    const ItemRecord r = World::Record(number);
    return MakeShopRow(r[NameField], r[WeightField], r[PriceField], r[AvailabilityField]);
}

ShopEditor FilledShop(std::int64_t rows) {
    ShopEditor shop;
    for (int i = 0; i < rows; ++i)
        shop.lvLaden.rows.push_back(Ware(i));
    ArrangeShopList(shop);
    UpdateShopButtons(shop);
    return shop;
}

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

    void Run() { GenerateShop(dialog_, shop_, regions_, world_.platform, world_.folders); }

    std::int64_t throws = 0;

private:
    World world_;
    bool regionCounts_;
    Dice dice_{Clock};
    RegionTable regions_ = RegionInit();
    ShopEditor shop_;
    frmEmporiumGenerator dialog_;
};

void RunGenerator(benchmark::State& state, bool regionCounts) {
    GeneratorRun run(state.range(0), regionCounts);
    for (auto _ : state) {
        state.PauseTiming();
        run.Prepare();
        state.ResumeTiming();
        run.Run();
    }
}

void Generator(benchmark::State& state) {
    Beside(state, "BoundDice");
    RunGenerator(state, false);
}

void GeneratorWithRegion(benchmark::State& state) {
    Beside(state, "BoundDiceWithRegion");
    RunGenerator(state, true);
}

// As many throws as a run takes.
void ThrowDice(benchmark::State& state, bool regionCounts) {
    GeneratorRun run(state.range(0), regionCounts);
    run.Prepare();
    run.Run();
    Dice dice(Clock);
    for (auto _ : state)
        for (std::int64_t i = 0; i < run.throws; ++i)
            benchmark::DoNotOptimize(dice.RollDice(6));
}

void BoundDice(benchmark::State& state) {
    ThrowDice(state, false);
}

void BoundDiceWithRegion(benchmark::State& state) {
    ThrowDice(state, true);
}

void PriceLevel(benchmark::State& state) {
    ShopEditor shop = FilledShop(state.range(0));
    int level = 0;
    for (auto _ : state)
        ChoosePriceLevel(shop, level++ % 5);
}

void SortShop(benchmark::State& state) {
    Beside(state, "BoundSort");
    ShopEditor shop = FilledShop(state.range(0));
    int column = 0;
    for (auto _ : state)
        SortShopList(shop, column = ShopPriceColumn - column);
}

void SortItems(benchmark::State& state) {
    Beside(state, "BoundSort");
    World world(static_cast<int>(state.range(0)), Categories);
    ItemEditor editor;
    editor.cmbKategorien.Select(0);
    LoadItems(editor, world.platform, world.folders);
    int column = 0;
    for (auto _ : state)
        SortItemList(editor, column = ItemPriceColumn - column);
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

// Both of a row at any place, in a shop that keeps its size.
void AddShopRowBench(benchmark::State& state) {
    ShopEditor shop = FilledShop(state.range(0) - 1);
    int number = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto ware = Ware(++number);
        state.ResumeTiming();
        AddShopRow(shop, std::move(ware));
        state.PauseTiming();
        ChooseShopRow(shop, number * 7919 % shop.ShopCount());
        RemoveShopRow(shop);
        state.ResumeTiming();
    }
}

void RemoveShopRowBench(benchmark::State& state) {
    ShopEditor shop = FilledShop(state.range(0));
    int number = 0;
    for (auto _ : state) {
        state.PauseTiming();
        if (shop.ShopCount() < state.range(0))
            AddShopRow(shop, Ware(number));
        ChooseShopRow(shop, ++number * 7919 % shop.ShopCount());
        state.ResumeTiming();
        RemoveShopRow(shop);
    }
}

// The first row again and again, which has all others move up.
void Remove10000ShopRows(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        ShopEditor shop = FilledShop(state.range(0));
        ChooseShopRow(shop, 0);
        state.ResumeTiming();
        for (int i = 0; i < 10'000; ++i)
            RemoveShopRow(shop);
    }
}

void ShopExport(benchmark::State& state) {
    const ShopEditor shop = FilledShop(state.range(0));
    std::string document;
    for (auto _ : state) {
        document.clear();
        WriteShopExport(shop, document);
        benchmark::DoNotOptimize(document);
    }
}

void ShopPrint(benchmark::State& state) {
    const ShopEditor shop = FilledShop(state.range(0));
    std::string document;
    for (auto _ : state) {
        document.clear();
        WriteShopPrint(shop, document);
        benchmark::DoNotOptimize(document);
    }
}

void ItemListDocument(benchmark::State& state) {
    World world(static_cast<int>(state.range(0)), Categories);
    ItemEditor editor;
    editor.cmbKategorien.Select(0);
    LoadItems(editor, world.platform, world.folders);
    std::string document;
    for (auto _ : state) {
        document.clear();
        WriteItemList(editor, document);
        benchmark::DoNotOptimize(document);
    }
}

std::string Settings(std::int64_t keys) {
    std::string text = "[Region]\r\n";
    for (int i = 0; i < keys; ++i)
        text += "Key" + std::to_string(i) + "=Wert " + std::to_string(i) + "\r\n";
    return text;
}

std::string Names(std::int64_t names) {
    std::string text;
    for (int i = 0; i < names; ++i)
        text += "Alrike" + std::to_string(i) + "\r\n";
    return text;
}

void ReadIniValueBench(benchmark::State& state) {
    Beside(state, "BoundReadSettings");
    const World world(0, 1);
    const auto file = world.WriteData("Settings.dat", Settings(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(ReadIniValue(world.platform.files, file, "Region", "Key17"));
}

void BoundReadSettings(benchmark::State& state) {
    const World world(0, 1);
    const auto file = world.WriteData("Settings.dat", Settings(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(CountLines(world.platform.files, file));
}

// A name of two lists.
void GenNameBench(benchmark::State& state) {
    Beside(state, "BoundReadNames");
    const World world(0, 1);
    for (const auto list : {"GarethWeiblich.dat", "GarethNachname.dat"})
        world.WriteData(std::filesystem::path("Borough") / list, Names(state.range(0)));
    Dice dice(Clock);
    const Die die = [&dice](std::int32_t n) { return dice.RollDice(n); };
    for (auto _ : state) {
        NameLists lists(world.platform.files, world.folders, die);
        std::string sex = "Weiblich";
        benchmark::DoNotOptimize(GenName(lists, die, "Gareth", sex));
    }
}

void BoundReadNames(benchmark::State& state) {
    const World world(0, 1);
    const auto file = world.WriteData("Names.dat", Names(state.range(0)));
    for (auto _ : state)
        for (int list = 0; list < 2; ++list)
            benchmark::DoNotOptimize(CountLines(world.platform.files, file));
}

// Start-up with a list of that many categories.
void CategoryList(benchmark::State& state) {
    const World world(0, static_cast<int>(state.range(0)));
    for (auto _ : state) {
        ItemEditor editor;
        std::vector<std::string> faults;
        ReadCategoryList(editor, world.platform.files, world.folders, faults);
        benchmark::DoNotOptimize(editor);
    }
}

BENCHMARK(Generator)->Apply(Sizes);
BENCHMARK(BoundDice)->Apply(Sizes);
BENCHMARK(GeneratorWithRegion)->Apply(Sizes);
BENCHMARK(BoundDiceWithRegion)->Apply(Sizes);
BENCHMARK(SortShop)->Apply(Sizes);
BENCHMARK(SortItems)->Apply(Sizes);
BENCHMARK(BoundSort)->Apply(Sizes);
BENCHMARK(PriceLevel)->Apply(Sizes);
BENCHMARK(AddShopRowBench)->Name("AddShopRow")->Apply(Sizes);
BENCHMARK(RemoveShopRowBench)->Name("RemoveShopRow")->Apply(Sizes);
BENCHMARK(Remove10000ShopRows)->Arg(32767);
BENCHMARK(ShopExport)->Apply(Sizes);
BENCHMARK(ShopPrint)->Apply(Sizes);
BENCHMARK(ItemListDocument)->Apply(Sizes);
BENCHMARK(ReadIniValueBench)->Name("ReadIniValue")->Apply(Sizes);
BENCHMARK(BoundReadSettings)->Apply(Sizes);
BENCHMARK(GenNameBench)->Name("GenName")->Apply(Sizes);
BENCHMARK(BoundReadNames)->Apply(Sizes);
BENCHMARK(CategoryList)->Apply(Sizes);

} // namespace
} // namespace emporium::bench

int main(int argc, char** argv) {
    emporium::bench::RunAll(argc, argv);
}
