// Reading, saving and importing. Where something is written, the wall clock counts: the disk takes
// most of the time.
#include "Table.h"
#include "World.h"

#include "files/FileWriting.h"
#include "itemeditor/CategoryChoice.h"
#include "itemeditor/ItemForm.h"
#include "itemeditor/ItemList.h"
#include "itemeditor/ItemSaving.h"
#include "store/ArsenalImport.h"

#include <array>

namespace emporium::bench {
namespace {

void ReadCategory(benchmark::State& state) {
    const World world(static_cast<int>(state.range(0)), 1);
    for (auto _ : state)
        benchmark::DoNotOptimize(ReadCategoryFile(world.platform.disk, CategoryName(0)));
}

void Read(int categories, benchmark::State& state) {
    const World world(static_cast<int>(state.range(0)), categories);
    for (auto _ : state)
        for (int c = 0; c < categories; ++c)
            benchmark::DoNotOptimize(CountLines(world.platform.disk.files,
                                                CategoryPath(world.folders, CategoryName(c))));
}

// The list is sorted, too.
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

void WriteCategory(benchmark::State& state) {
    const World world(static_cast<int>(state.range(0)), 1);
    const auto file = ReadCategoryFile(world.platform.disk, CategoryName(0));
    for (auto _ : state) {
        const std::string text = WithRecordAt(*file.bytes, file.records[7], World::Record(7));
        if (!WriteFiles(world.platform.disk.files, world.folders.EmporiumFolder(),
                        {{CategoryPath(world.folders, CategoryName(0)), text}})
                 .stands)
            state.SkipWithError("the file was not written");
    }
}

void Write(int categories, benchmark::State& state) {
    const World world(static_cast<int>(state.range(0)), categories);
    const auto file = ReadCategoryFile(world.platform.disk, CategoryName(0));
    for (auto _ : state)
        WriteAndFlush(world.platform.disk.files, world.folders.TempFolder / "bytes.dat",
                      *file.bytes);
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
}

// Source records by the form of the armour file: 19 lines behind a line that is passed over.
std::string Source(std::int64_t records) {
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

// As many source records as the category has items, all of them new: the whole is of the size.
class ImportWorld {
public:
    explicit ImportWorld(std::int64_t records)
        : world(static_cast<int>(records / 2), 1),
          category(CategoryPath(world.folders, FixedCategories()[2])),
          source(world.WriteData("Arsenal" / category.filename(), Source(records / 2))),
          filled_(world.platform.disk.files.read(CategoryPath(world.folders, CategoryName(0)))) {}

    void Prepare() const { std::ofstream(category, std::ios::binary) << filled_.bytes; }

    World world;
    std::filesystem::path category, source;

private:
    FileText filled_;
};

void Import(benchmark::State& state) {
    const ImportWorld import(state.range(0));
    std::vector<std::string> faults;
    for (auto _ : state) {
        state.PauseTiming();
        import.Prepare();
        state.ResumeTiming();
        ImportArsenal(import.world.platform.disk, faults);
    }
    if (!faults.empty())
        state.SkipWithError(faults.front().c_str());
}

// Reads source and category, writes the category as it is afterwards.
void BoundImport(benchmark::State& state) {
    const ImportWorld import(state.range(0));
    const FileLayer& files = import.world.platform.disk.files;
    std::vector<std::string> faults;
    import.Prepare();
    ImportArsenal(Disk{files, import.world.folders}, faults);
    const FileText imported = files.read(import.category);
    for (auto _ : state) {
        state.PauseTiming();
        import.Prepare();
        state.ResumeTiming();
        benchmark::DoNotOptimize(CountLines(files, import.source));
        benchmark::DoNotOptimize(CountLines(files, import.category));
        WriteAndFlush(files, import.world.folders.TempFolder / "bytes.dat", imported.bytes);
    }
}

const std::vector<Measurement> Measurements = {
    {"ReadCategory", "BoundReadCategory", ReadCategory},
    {"BoundReadCategory", "", std::bind_front(Read, 1)},
    {"LoadAlles", "BoundReadAlles", LoadAlles},
    {"BoundReadAlles", "", std::bind_front(Read, Categories)},
    {"WriteCategory", "BoundWriteCategory", WriteCategory, true},
    {"SaveInCategory", "BoundWriteCategory", std::bind_front(Save, 1, 1), true},
    {"BoundWriteCategory", "", std::bind_front(Write, 1), true},
    {"SaveInAlles", "BoundWriteOneOf50", std::bind_front(Save, Categories, 0), true},
    {"BoundWriteOneOf50", "", std::bind_front(Write, Categories), true},
    {"Import", "BoundImport", Import, true},
    {"BoundImport", "", BoundImport, true}};

} // namespace
} // namespace emporium::bench

int main(int argc, char** argv) {
    emporium::bench::RunAll(argc, argv, emporium::bench::Measurements);
}
