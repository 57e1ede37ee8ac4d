// Any bytes as a category file and as the sibling tool's file of that category: the import only
// ever adds whole items, and adds them once. The input's first byte chooses the category; the first
// NUL behind it parts the two files.
#include "Fuzz.h"

#include "store/ArsenalImport.h"
#include "store/CategoryFiles.h"

#include <algorithm>

namespace emporium::fuzz {
namespace {

const Folders TheFolders = InitFolders("/fuzz");

bool HasName(const CategoryFile& file, std::string_view name) {
    return std::any_of(file.records.begin(), file.records.end(),
                       [name](const RecordView& record) { return ItemName(record) == name; });
}

std::vector<std::string> Import(const FileLayer& files) {
    std::vector<std::string> faults;
    ImportArsenal(files, TheFolders, faults);
    return faults;
}

void CheckAdded(const CategoryFile& before, const CategoryFile& after) {
    Expect(after.CanBeWritten() && after.records.size() > before.records.size(), "whole items");
    Expect(std::equal(before.records.begin(), before.records.end(), after.records.begin()),
           "all items from before stand");
    for (auto record = after.records.begin() + std::ssize(before.records);
         record != after.records.end(); ++record) {
        const std::string_view name = (*record)[NameField];
        const std::string_view price = (*record)[PriceField];
        Expect(name.size() > 1 && name.ends_with('1'), "a name and the Wert 1");
        Expect(!price.empty() && std::string_view("DSHP").find(price.back()) != price.npos,
               "a unit");
        Expect(!HasName(before, ItemName(*record)), "only what the category lacks");
    }
}

void CheckImport(const std::string& category, const std::string& bytes, Disk& disk) {
    const FileLayer files = FilesOn(disk);
    const CategoryFile before = ReadCategoryFile(files, TheFolders, category);
    const auto faults = Import(files);
    const CategoryFile after = ReadCategoryFile(files, TheFolders, category);
    Expect(faults.empty() == !before.cutOff, "a box for a file that is cut off, and for no other");
    Expect(after.bytes->starts_with(bytes), "all bytes from before stand");
    if (*after.bytes != bytes)
        CheckAdded(before, after);
    const Disk once = disk;
    Import(files);
    Expect(disk == once, "a second import adds nothing");
}

} // namespace
} // namespace emporium::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace emporium;
    using namespace emporium::fuzz;
    if (size == 0)
        return 0;
    const std::string category(FixedCategories()[data[0] % FixedCategories().size()]);
    const std::string_view rest = TextOf(data + 1, size - 1);
    const auto part = std::min(rest.find('\0'), rest.size());
    const std::string bytes(rest.substr(0, part));
    if (!bytes.empty() && bytes.back() == '\r')
        return 0; // a line end behind a lone CR takes it in
    const auto file = CategoryPath(TheFolders, category);
    Disk disk = {{file.string(), bytes}};
    disk[(TheFolders.DataFolder / "Arsenal" / file.filename()).string()] =
        rest.substr(std::min(part + 1, rest.size()));
    CheckImport(category, bytes, disk);
    return 0;
}
