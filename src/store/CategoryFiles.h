// The file of a category: its records, what reading them came to, and what the user is told of it.
// Writing is FileWriting's.
#pragma once

#include "base/Disk.h"
#include "store/CategoryPaths.h"
#include "store/ItemRecord.h"

#include <string>
#include <string_view>
#include <vector>

namespace emporium {

/// What the user is told of a record that a category has no room for.
inline constexpr std::string_view CategoryIsFull =
    "Die Kategorie ist voll: Sie fasst höchstens 32767 Gegenstände."_ansi;

/// What the user is told of lines that are left over behind the last whole record.
inline constexpr std::string_view RecordIsCutOff =
    "Der letzte Datensatz ist nicht vollständig."_ansi;

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

/// What the user should know of the file, one line for each fault: missing, unreadable, cut
/// off, records whose name or price line lacks its mark. Empty if all is well.
std::vector<std::string> CategoryFaults(std::string_view name, const CategoryFile& file);

} // namespace emporium
