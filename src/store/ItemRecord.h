// The record of an item: five lines.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>

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

/// The name without its Wert digit.
std::string_view ItemName(const RecordView& record);

} // namespace emporium
