// Changing the text of a category file by a record: adding one, replacing one, taking one out.
#pragma once

#include "store/ItemRecord.h"

#include <vector>

namespace emporium {

/// The text of a category file with further records behind those that it has, with another
/// record in the place of one, or with one taken out. `place` is a record within these bytes.
/// All other bytes stay as they are, and new lines end as the file's lines do.
std::string WithRecords(std::string_view bytes, const std::vector<ItemRecord>& records);
std::string WithRecordAt(std::string_view bytes, const RecordView& place, const ItemRecord& record);
std::string WithoutRecordAt(std::string_view bytes, const RecordView& place);

} // namespace emporium
