// Any bytes as a category file and as the category list: what was read whole is written back byte
// for byte, and a change reaches nothing but its own place.
#include "Fuzz.h"

#include "store/CategoryFiles.h"

#include <algorithm>

namespace emporium::fuzz {
namespace {

const Folders TheFolders = InitFolders("/fuzz");

constexpr std::size_t MostPlaces = 4; // a longer file shows nothing new

using Records = std::vector<ItemRecord>;

Records Copies(const std::vector<RecordView>& views) {
    Records records;
    for (const RecordView& view : views)
        records.push_back(CopyOf(view));
    return records;
}

CategoryFile ReadBack(std::string_view bytes) {
    Disk disk = {{CategoryPath(TheFolders, "Fuzz").string(), std::string(bytes)}};
    return ReadCategoryFile(FilesOn(disk), TheFolders, "Fuzz");
}

CategoryList ReadListBack(std::string_view bytes) {
    Disk disk = {{CategoryListPath(TheFolders).string(), std::string(bytes)}};
    return ReadCategoryNames(FilesOn(disk), TheFolders);
}

void CheckReading(std::string_view bytes, const CategoryFile& file) {
    const auto lines = LinesOf(bytes);
    Expect(file.records.size() == lines.size() / ItemFieldCount, "five lines are a record");
    Expect(file.cutOff == (lines.size() % ItemFieldCount > 0), "further lines are noticed");
    for (std::size_t i = 0; i < file.records.size() * ItemFieldCount; ++i)
        Expect(file.records[i / ItemFieldCount][i % ItemFieldCount] == lines[i], "lines are kept");
}

void CheckChange(std::string_view bytes, const CategoryFile& file, std::size_t place) {
    static const ItemRecord other = {"Seil3", "10", "4H", "", "BO|GA|"};
    const RecordView& view = file.records[place];
    const std::string changed = WithRecordAt(*file.bytes, view, other);
    const CategoryFile read = ReadBack(changed);
    Records expected = Copies(file.records);
    const ItemRecord own = expected[place];
    expected[place] = other;
    Expect(Copies(read.records) == expected, "a change reaches one record");
    Expect(read.cutOff == file.cutOff, "a change leaves the file as whole as it was");
    const char* const start = file.bytes->data();
    const std::string_view before(start, view.front().data());
    const std::string_view rest(view.back().data(), start + file.bytes->size());
    Expect(changed.starts_with(before), "the bytes before the record stay");
    Expect(changed.ends_with(rest.substr(std::min(rest.find('\n'), rest.size()))), "and behind it");
    if (IsWellFormed(bytes)) {
        Expect(WithRecordAt(*file.bytes, view, own) == bytes, "the same record is no change");
        Expect(WithRecordAt(*read.bytes, read.records[place], own) == bytes, "changed back");
    }
}

void CheckRemoval(const CategoryFile& file, std::size_t place) {
    const std::string rest = WithoutRecordAt(*file.bytes, file.records[place]);
    Records expected = Copies(file.records);
    expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(place));
    Expect(Copies(ReadBack(rest).records) == expected, "a removal reaches one record");
    const auto begin = static_cast<std::size_t>(
        std::mismatch(rest.begin(), rest.end(), file.bytes->begin()).first - rest.begin());
    Expect(file.bytes->ends_with(std::string_view(rest).substr(begin)), "no other byte changes");
}

void CheckAddition(const CategoryFile& file) {
    if (!file.CanBeWritten())
        return;
    const ItemRecord added = {"Sack1", "", "2H", "Aus Jute", ""};
    const std::string text = WithRecords(*file.bytes, {added, added});
    Records expected = Copies(file.records);
    expected.insert(expected.end(), 2, added);
    Expect(text.starts_with(*file.bytes), "an addition keeps all that was there");
    Expect(Copies(ReadBack(text).records) == expected, "an addition stands behind the last record");
}

void CheckList(std::string_view bytes) {
    constexpr const char* name = "Ganz neue Kategorie";
    const CategoryList list = ReadListBack(bytes);
    if (!CategoryListFault(list).empty() ||
        std::find(list.names.begin(), list.names.end(), name) != list.names.end())
        return;
    const CategoryList grown = ReadListBack(WithCategory(list, name));
    Expect(grown.names.size() == list.names.size() + 1 && grown.names.back() == name, "a new name");
    const std::string back = WithoutCategory(grown, name);
    Expect(ReadListBack(back).names == list.names, "the names before");
    const std::string count = " " + std::to_string(list.names.size()) + " ";
    if (IsWellFormed(bytes) && !bytes.empty() && LinesOf(bytes).front() == count)
        Expect(back == bytes, "the list before");
}

} // namespace
} // namespace emporium::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace emporium::fuzz;
    const std::string_view bytes = TextOf(data, size);
    if (bytes.ends_with('\r'))
        return 0; // a line end behind a lone CR would take it in
    const auto file = ReadBack(bytes);
    CheckReading(bytes, file);
    for (std::size_t place = 0; place < std::min(file.records.size(), MostPlaces); ++place) {
        CheckChange(bytes, file, place);
        CheckRemoval(file, place);
    }
    CheckAddition(file);
    CheckList(bytes);
    return 0;
}
