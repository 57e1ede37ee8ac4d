// The generator, prices, orders, documents and names.
#include "Table.h"
#include "World.h"

#include "base/Subs.h"
#include "documents/ItemListDocument.h"
#include "documents/ShopDocument.h"
#include "generator/GeneratorConfig.h"
#include "generator/ShopGeneration.h"
#include "itemeditor/CategoryChoice.h"
#include "itemeditor/ItemList.h"
#include "names/GenNameSub.h"

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

// The first row again and again, which has all others move up.
void Remove10000ShopRows(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        ShopEditor shop = FilledShop(state.range(0));
        ChooseShopRow(shop, 0);
        state.ResumeTiming();
        for (int i = 0; i < 10'000; ++i)
            RemoveShopRow(shop, {});
    }
}

template <typename Editor>
void WriteDocument(benchmark::State& state, const Editor& editor,
                   void (*write)(const Editor&, std::string&)) {
    std::string document;
    for (auto _ : state) {
        document.clear();
        write(editor, document);
        benchmark::DoNotOptimize(document);
    }
}

std::string Numbered(std::string_view name, std::string_view behind, std::int64_t lines) {
    std::string text;
    for (int i = 0; i < lines; ++i)
        text.append(name).append(std::to_string(i)).append(behind).append("\r\n");
    return text;
}

std::string Settings(std::int64_t keys) {
    return "[Region]\r\n" + Numbered("Key", "=Wert", keys);
}

std::string Names(std::int64_t names) {
    return Numbered("Alrike", "", names);
}

void ReadSetting(benchmark::State& state) {
    const World world(0, 1);
    const auto file = world.WriteData("Settings.dat", Settings(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(ReadIniValue(world.platform.disk.files, file, "Region", "Key17"));
}

// A name of two lists.
void DrawName(benchmark::State& state) {
    const World world(0, 1);
    for (const auto list : {"GarethWeiblich.dat", "GarethNachname.dat"})
        world.WriteData(std::filesystem::path("Borough") / list, Names(state.range(0)));
    Dice dice(SecondsSinceMidnight);
    const Die die = [&dice](std::int32_t n) { return dice.RollDice(n); };
    for (auto _ : state) {
        NameLists lists(world.platform.disk, die);
        std::string sex = "Weiblich";
        benchmark::DoNotOptimize(GenName(lists, "Gareth", sex));
    }
}

void Read(benchmark::State& state, const std::string& text, int times) {
    const World world(0, 1);
    const auto file = world.WriteData("Lines.dat", text);
    for (auto _ : state)
        for (int time = 0; time < times; ++time)
            benchmark::DoNotOptimize(CountLines(world.platform.disk.files, file));
}

// Start-up with a list of that many categories.
void CategoryList(benchmark::State& state) {
    const World world(0, static_cast<int>(state.range(0)));
    for (auto _ : state) {
        ItemEditor editor;
        std::vector<std::string> faults;
        ReadCategoryList(editor, world.platform.disk, faults);
        benchmark::DoNotOptimize(editor);
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
    {"Remove10000ShopRows", "", Remove10000ShopRows, false, {32767}},
    {"ShopExport", "", [](State& s) { WriteDocument(s, FilledShop(s.range(0)), WriteShopExport); }},
    {"ShopPrint", "", [](State& s) { WriteDocument(s, FilledShop(s.range(0)), WriteShopPrint); }},
    {"ItemListDocument", "",
     [](State& s) { WriteDocument(s, AllItems(s.range(0)), WriteItemList); }},
    {"ReadIniValue", "BoundReadSettings", ReadSetting},
    {"BoundReadSettings", "", [](State& s) { Read(s, Settings(s.range(0)), 1); }},
    {"GenName", "BoundReadNames", DrawName},
    {"BoundReadNames", "", [](State& s) { Read(s, Names(s.range(0)), 2); }},
    {"CategoryList", "", CategoryList}};

} // namespace
} // namespace emporium::bench

int main(int argc, char** argv) {
    emporium::bench::RunAll(argc, argv, emporium::bench::Measurements);
}
