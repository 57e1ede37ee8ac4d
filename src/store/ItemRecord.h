// The record of an item, five lines, and the text that records make up: finding them in it, adding
// one, replacing one, taking one out.
#pragma once

#include "text/LineReader.h"

#include <array>
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

/// The text of a file, shared with the views of its records.
using SharedText = std::shared_ptr<const std::string>;

/// The record as a view of its texts, which lives as long as they do, and a copy of a view.
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

/// The text of a category file with further records behind those that it has, with another
/// record in the place of one, or with one taken out. `place` is a record within these bytes.
/// All other bytes stay as they are, and new lines end as the file's lines do.
std::string WithRecords(std::string_view bytes, const std::vector<ItemRecord>& records);
std::string WithRecordAt(std::string_view bytes, const RecordView& place, const ItemRecord& record);
std::string WithoutRecordAt(std::string_view bytes, const RecordView& place);

} // namespace emporium
