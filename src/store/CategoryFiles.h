// The text files of the item database: the category list and one file of five-line records for each
// category. Reading tells what it came to; writing is FileWriting's.
#pragma once

#include "base/Disk.h"
#include "files/FileLayer.h"
#include "text/Ansi.h"
#include "text/LineReader.h"

#include <array>
#include <filesystem>
#include <memory>
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

/// A record that stands nowhere yet.
using ItemRecord = std::array<std::string, ItemFieldCount>;

/// A record within the text of its file.
using RecordView = std::array<std::string_view, ItemFieldCount>;

RecordView ViewOf(const ItemRecord& record);
ItemRecord CopyOf(const RecordView& record);

/// True if the name line ends in a digit or the price line in something else, as they have to.
bool HasMark(const RecordView& record, ItemField field);

/// The records of a category file's text, one after the other.
class RecordReader {
public:
    /// The text must outlive the reader and the records that it gave.
    explicit RecordReader(std::string_view text) : lines_(text) {}

    /// The next whole record; false behind the last one.
    bool Next(RecordView& record);

    /// True if lines that are not empty were left over behind the last whole record.
    bool CutOff() const { return cutOff_; }

private:
    LineReader lines_;
    bool cutOff_ = false;
};

/// The name without its Wert digit.
std::string_view ItemName(const RecordView& record);

/// The view over all categories; no category itself.
inline constexpr std::string_view AllCategories = "Alles";

/// What the user is told of a record that a category has no room for.
inline constexpr std::string_view CategoryIsFull =
    "Die Kategorie ist voll: Sie fasst höchstens 32767 Gegenstände."_ansi;

/// What the user is told of lines that are left over behind the last whole record.
inline constexpr std::string_view RecordIsCutOff =
    "Der letzte Datensatz ist nicht vollständig."_ansi;

/// The categories that the import fills. They can't be deleted.
const std::array<std::string_view, 3>& FixedCategories();
bool IsFixedCategory(std::string_view name);

std::filesystem::path CategoryListPath(const Folders& folders);

/// The file of a category. The name must be a plain file name, see IsPlainName.
std::filesystem::path CategoryPath(const Folders& folders, std::string_view name);

/// True if name + ".dat" leads to a file directly in its folder, on Linux and on Windows.
bool IsPlainName(std::string_view name);

/// True if name + ".dat" is a file of the folder that is no category, or that is renamed to one
/// at the next start.
bool IsOwnFile(std::string_view name);

struct CategoryList {
    FileText::State state = FileText::State::Absent;
    std::error_code reason; // unless whole
    std::string bytes;
    std::vector<std::string> names; // in file order; without empty lines, repetitions and "Alles"
};

/// The names of the list, at most MaxRows. A first line that is no number counts as a name.
CategoryList ReadCategoryNames(const Disk& disk);

/// Why the list must not be changed, one line for the user: it could not be read, or has not as
/// many names as its first line says and may be damaged. Empty if all is well.
std::string CategoryListFault(const CategoryList& list);

/// The bytes of a list without a fault, with a further name or without one, and with the right
/// number on its first line. All other lines stay.
std::string WithCategory(const CategoryList& list, std::string_view name);
std::string WithoutCategory(const CategoryList& list, std::string_view name);

/// A file's bytes, shared with the views of its records.
using SharedText = std::shared_ptr<const std::string>;

struct CategoryFile {
    FileText::State state = FileText::State::Absent;
    std::error_code reason;
    SharedText bytes;
    std::vector<RecordView> records; // the whole records, within bytes
    bool cutOff = false;             // lines are left over behind the last whole record

    /// True if the records are all that the file holds, so that it may be written again.
    bool CanBeWritten() const { return state != FileText::State::Unreadable && !cutOff; }
};

/// A category's records. A name that is no plain one, or that of a file of another kind, is
/// unreadable.
CategoryFile ReadCategoryFile(const Disk& disk, std::string_view name);

/// The bytes of a category file with further records behind those that it has, with another
/// record in the place of one, or with one taken out. `place` is a record within these bytes.
/// All other bytes stay as they are, and new lines end as the file's lines do.
std::string WithRecords(std::string_view bytes, const std::vector<ItemRecord>& records);
std::string WithRecordAt(std::string_view bytes, const RecordView& place, const ItemRecord& record);
std::string WithoutRecordAt(std::string_view bytes, const RecordView& place);

/// What the user should know of the file, one line for each fault: missing, unreadable, cut
/// off, records whose name or price line lacks its mark. Empty if all is well.
std::vector<std::string> CategoryFaults(std::string_view name, const CategoryFile& file);

} // namespace emporium
