// Reading and saving. Where something is written, the wall clock counts: the disk takes
// most of the time.
#include "Table.h"
#include "World.h"

#include "itemeditor/CategoryChoice.h"
#include "itemeditor/CategoryDropDowns.h"
#include "itemeditor/ItemForm.h"
#include "itemeditor/ItemList.h"
#include "itemeditor/ItemSaving.h"

namespace emporium::bench {
namespace {

void Read(benchmark::State& state) {
    const World world(static_cast<int>(state.range(0)), Categories);
    for (auto _ : state)
        for (int c = 0; c < Categories; ++c)
            benchmark::DoNotOptimize(CountLines(world.platform.disk.files,
                                                CategoryPath(world.folders, CategoryName(c))));
}

void LoadAlles(benchmark::State& state) {
    World world(static_cast<int>(state.range(0)), Categories);
    ItemEditor editor;
    editor.cmbKategorien.Select(0);
    for (auto _ : state)
        LoadItems(editor, world.platform);
    if (editor.ItemCount() != state.range(0))
        state.SkipWithError("not all items were loaded");
}

// Writes and flushes the bytes where nothing was before.
void WriteAndFlush(const FileLayer& files, const std::filesystem::path& file,
                   const std::string& bytes) {
    files.remove(file);
    FileLayer::Handle handle = 0;
    std::size_t written = 0;
    const bool failed = files.createNew(file, handle) || files.write(handle, bytes, written) ||
                        files.flush(handle) || files.close(handle);
    if (failed || written != bytes.size())
        std::abort();
}

void Write(int categories, benchmark::State& state) {
    const World world(static_cast<int>(state.range(0)), categories);
    const auto file = ReadCategoryFile(world.platform.disk, CategoryName(0));
    for (auto _ : state)
        WriteAndFlush(world.platform.disk.files, world.folders.TempFolder / "bytes.dat",
                      *file.bytes);
}

// The same beside a file, which is replaced so that it outlives a power cut.
void Replace(int categories, benchmark::State& state) {
    const World world(static_cast<int>(state.range(0)), categories);
    const FileLayer& files = world.platform.disk.files;
    const auto file = ReadCategoryFile(world.platform.disk, CategoryName(0));
    const auto beside = world.folders.TempFolder / "bytes.neu";
    for (auto _ : state) {
        WriteAndFlush(files, beside, *file.bytes);
        if (files.rename(beside, world.folders.TempFolder / "bytes.dat") ||
            files.flushFolder(world.folders.TempFolder))
            std::abort();
    }
}

// A changed item, in a view of one category or of all.
void Save(int categories, int view, benchmark::State& state) {
    World world(static_cast<int>(state.range(0)), categories);
    ItemEditor editor;
    std::vector<std::string> faults;
    ReadCategoryList(editor, world.platform.disk, faults);
    ChooseCategory(editor, world.platform, view);
    int change = 0;
    for (auto _ : state) {
        ChooseItemRow(editor, world.platform, 7);
        EditItemText(editor, WeightText, std::to_string(++change));
        SaveItem(editor, world.platform);
    }
    if (editor.EditingExisting)
        state.SkipWithError("the item was not saved");
}

const std::vector<Measurement> Measurements = {
    {"LoadAlles", "BoundReadAlles", LoadAlles},
    {"BoundReadAlles", "", Read},
    {"SaveInCategory", "BoundReplaceCategory", std::bind_front(Save, 1, 1), true},
    {"BoundReplaceCategory", "BoundWriteCategory", std::bind_front(Replace, 1), true},
    {"BoundWriteCategory", "", std::bind_front(Write, 1), true},
    {"SaveInAlles", "BoundReplaceOneOf50", std::bind_front(Save, Categories, 0), true},
    {"BoundReplaceOneOf50", "BoundWriteOneOf50", std::bind_front(Replace, Categories), true},
    {"BoundWriteOneOf50", "", std::bind_front(Write, Categories), true}};

} // namespace
} // namespace emporium::bench

int main(int argc, char** argv) {
    emporium::bench::RunAll(argc, argv, emporium::bench::Measurements);
}
