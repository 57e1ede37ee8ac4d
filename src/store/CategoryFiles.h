// The text file of a category: records of five lines each. Reading tells what it came to; writing
// is FileWriting's.
#pragma once

#include "base/Disk.h"
#include "files/FileLayer.h"
#include "store/CategoryNames.h"
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

/// What the user is told of a record that a category has no room for.
inline constexpr std::string_view CategoryIsFull =
    "Die Kategorie ist voll: Sie fasst höchstens 32767 Gegenstände."_ansi;

/// What the user is told of lines that are left over behind the last whole record.
inline constexpr std::string_view RecordIsCutOff =
    "Der letzte Datensatz ist nicht vollständig."_ansi;

/// A file's bytes, shared with the views of its records.
using SharedText = std::shared_ptr<const std::string>;

struct CategoryFile {
    FileText::State state = FileText::State::Absent;
    std::error_code reason;
    SharedText bytes;
    std::vector<RecordView> records; // the whole records, within bytes
    bool goesOn = false;             // there are more records than a view can hold
    bool cutOff = false;             // lines are left over behind the last whole record

    /// True if the records are all that the file holds, so that it may be written again.
    bool CanBeWritten() const { return state != FileText::State::Unreadable && !cutOff && !goesOn; }
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
