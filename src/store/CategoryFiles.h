// The text files of the item database: the category list and one file of five-line records for each
// category. Reading tells what it came to; writing is FileWriting's.
#pragma once

#include "base/FileLayer.h"
#include "base/LineReader.h"
#include "base/Variablen.h"

#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace emporium {

/// The lines of a record.
enum ItemField : std::size_t {
    NameField,         // the name, directly followed by the digit of the Wert
    WeightField,       // in Unzen, without a unit
    PriceField,        // the number, directly followed by the unit letter
    DescriptionField,  // may be empty
    AvailabilityField, // region codes, each followed by "|"
    ItemFieldCount
};

using ItemRecord = std::array<std::string, ItemFieldCount>;

/// A record within the text of its file.
using RecordView = std::array<std::string_view, ItemFieldCount>;

/// The records of a category file's text, one after the other.
class RecordReader {
public:
    /// The text must outlive the reader and the records that it gave.
    explicit RecordReader(std::string_view text) : lines_(text) {}

    /// The next whole record; false behind the last one.
    bool Next(RecordView& record);

    /// True if lines were left over behind the last whole record.
    bool CutOff() const { return cutOff_; }

private:
    LineReader lines_;
    bool cutOff_ = false;
};

/// The name without its Wert digit.
std::string_view ItemName(const ItemRecord& record);

/// The view over all categories; no category itself.
inline constexpr std::string_view AllCategories = "Alles";

/// The categories that the import fills. They can't be deleted.
const std::array<std::string_view, 3>& FixedCategories();
bool IsFixedCategory(std::string_view name);

std::filesystem::path CategoryListPath(const Folders& folders);

/// The file of a category. The name must be a plain file name, see IsPlainName.
std::filesystem::path CategoryPath(const Folders& folders, std::string_view name);

/// True if name + ".dat" leads to a file directly in its folder, on Linux and on Windows.
bool IsPlainName(std::string_view name);

struct CategoryList {
    FileText::State state = FileText::State::Absent;
    std::error_code reason;         // unless whole
    std::vector<std::string> names; // in file order; without empty lines, repetitions and "Alles"
};

/// The names behind the first line. What the first line counts is not looked at.
CategoryList ReadCategoryNames(const FileLayer& files, const Folders& folders);

/// The bytes of a category list.
std::string CategoryListText(const std::vector<std::string>& names);

struct CategoryFile {
    FileText::State state = FileText::State::Absent;
    std::error_code reason;
    std::string bytes;
    std::vector<ItemRecord> records; // the whole records
    bool cutOff = false;             // lines are left over behind the last whole record

    /// True if the records are all that the file holds, so that it may be written again.
    bool CanBeWritten() const { return state != FileText::State::Unreadable && !cutOff; }
};

/// A category's records. A name that is no plain one is unreadable.
CategoryFile ReadCategoryFile(const FileLayer& files, const Folders& folders,
                              std::string_view name);

/// Appends the five lines of the record.
void AppendRecord(std::string& text, const ItemRecord& record);

/// The bytes of the file with further records behind those that it has.
std::string WithRecords(const CategoryFile& file, const std::vector<ItemRecord>& records);

/// What the user should know of the file, one line for each fault: missing, unreadable, cut off,
/// records with an empty name or price line. Empty if all is well.
std::vector<std::string> CategoryFaults(std::string_view name, const CategoryFile& file);

/// The text of one box for all that was noticed.
std::string FaultsText(const std::vector<std::string>& faults);

} // namespace emporium
