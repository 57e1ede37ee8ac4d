// Reading, saving and importing, each beside the bound that it is measured against.
#include "World.h"

#include "base/LineReader.h"
#include "itemeditor/CategoryChoice.h"
#include "itemeditor/ItemForm.h"
#include "itemeditor/ItemList.h"
#include "itemeditor/ItemSaving.h"
#include "store/ArsenalImport.h"

#include <benchmark/benchmark.h>

#include <array>

namespace emporium::bench {
namespace {

constexpr int Categories = 50;

void Sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->Arg(500)->Arg(5000)->Arg(32767)->Unit(benchmark::kMillisecond);
}

void LoadAll(benchmark::State& state) {
    World world(static_cast<int>(state.range(0)), Categories);
    ItemEditor editor;
    editor.cmbKategorien.Select(0);
    for (auto _ : state)
        LoadItems(editor, world.platform, world.folders);
    if (editor.ItemCount() != state.range(0))
        state.SkipWithError("not all items were loaded");
}

// Reading the files of the view and splitting them into the texts of their lines.
void BoundReadAndSplit(benchmark::State& state) {
    World world(static_cast<int>(state.range(0)), Categories);
    for (auto _ : state) {
        std::vector<ItemRecord> records;
        for (int c = 0; c < Categories; ++c) {
            const FileText text =
                world.platform.files.read(CategoryPath(world.folders, CategoryName(c)));
            LineReader lines(text.bytes);
            while (!lines.AtEnd()) {
                ItemRecord& record = records.emplace_back();
                std::string_view line;
                for (std::string& field : record) {
                    lines.Next(line);
                    field = line;
                }
            }
        }
        benchmark::DoNotOptimize(records);
    }
}

void BoundRead(benchmark::State& state) {
    World world(static_cast<int>(state.range(0)), Categories);
    for (auto _ : state)
        for (int c = 0; c < Categories; ++c)
            benchmark::DoNotOptimize(
                world.platform.files.read(CategoryPath(world.folders, CategoryName(c))));
}

void SaveInAll(benchmark::State& state) {
    World world(static_cast<int>(state.range(0)), Categories);
    ItemEditor editor;
    editor.cmbKategorien.Select(0);
    LoadItems(editor, world.platform, world.folders);
    int change = 0;
    for (auto _ : state) {
        ChooseItemRow(editor, world.platform, world.folders, 7);
        EditItemText(editor, WeightText, std::to_string(++change));
        SaveItem(editor, world.platform, world.folders);
    }
}

// Source records by the form of the armour file: 19 lines behind a line that is passed over.
std::string Source(int records) {
    std::string text = "Rüstungen\r\n";
    for (int i = 0; i < records; ++i) {
        std::array<std::string, 20> lines;
        lines[1] = "Panzer " + std::to_string(i);
        lines[9] = "12";
        lines[18] = "Dukaten";
        lines[19] = "BO|GA|";
        for (const std::string& line : lines)
            text += line + "\r\n";
    }
    return text;
}

void Import(benchmark::State& state) {
    World world(static_cast<int>(state.range(0)), 1);
    const auto category = CategoryPath(world.folders, FixedCategories()[2]);
    const auto filled = world.platform.files.read(CategoryPath(world.folders, CategoryName(0)));
    const auto source = world.folders.DataFolder / "Arsenal";
    std::filesystem::create_directories(source);
    std::ofstream(source / category.filename(), std::ios::binary)
        << Source(static_cast<int>(state.range(0)));
    std::vector<std::string> faults;
    for (auto _ : state) {
        state.PauseTiming();
        std::ofstream(category, std::ios::binary) << filled.bytes;
        state.ResumeTiming();
        ImportArsenal(world.platform.files, world.folders, faults);
    }
    if (!faults.empty())
        state.SkipWithError(faults.front().c_str());
}

BENCHMARK(LoadAll)->Apply(Sizes);
BENCHMARK(BoundReadAndSplit)->Apply(Sizes);
BENCHMARK(BoundRead)->Apply(Sizes);
BENCHMARK(SaveInAll)->Apply(Sizes);
BENCHMARK(Import)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace emporium::bench
