// The file of a category: its records, and what reading them came to. Writing is FileWriting's.
#pragma once

#include "base/Disk.h"
#include "store/CategoryPaths.h"
#include "store/ItemRecord.h"

#include <string>
#include <string_view>
#include <vector>

namespace emporium {

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

} // namespace emporium
