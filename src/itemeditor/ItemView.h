// The records on show, each within the bytes of the file that it was read from, and what becomes of
// them when a file is read or written.
#pragma once

#include "store/CategoryFiles.h"

#include <string>
#include <string_view>
#include <vector>

namespace emporium {

/// A category file that the view shows.
struct ViewFile {
    std::string name;
    SharedText bytes;         // as last read or written
    bool canBeWritten = true; // false if the view does not hold all of it
};

/// A record of the view, within the bytes of its file.
struct ItemRow {
    RecordView record;
    int home = 0; // the index of its file in viewFiles
};

struct ItemView {
    std::vector<ViewFile> viewFiles;
    std::vector<ItemRow> Items;

    int ItemCount() const { return static_cast<int>(Items.size()); }

    const RecordView& Record(int row) const { return Items[static_cast<std::size_t>(row)].record; }

    int HomeOf(int row) const { return Items[static_cast<std::size_t>(row)].home; }

    const ViewFile& FileAt(int home) const { return viewFiles[static_cast<std::size_t>(home)]; }
};

/// A change of one row of the view; the row ItemCount is a new one.
struct RowChange {
    int row;
    int home;                 // the index of its file in viewFiles
    const ItemRecord* record; // null: the row goes
};

/// Adds the file of a category with as many of its records as the view has room for. Adds to
/// `faults` what the user should know of it.
void AddToView(ItemView& view, const std::string& name, const CategoryFile& file,
               std::vector<std::string>& faults);

/// The index of the view's file of that category, -1 if the view has none.
int ViewFileOf(const ItemView& view, std::string_view category);

/// The row of the view that holds the same record of the same category as that row of `before`, -1
/// if there is none.
int RowLike(const ItemView& view, const ItemView& before, int row);

/// The row's file as it will be with the change: only the bytes of that record differ.
std::string FileTextWith(const ItemView& view, const RowChange& change);

/// Carries the change out in the records, whose file holds that text now.
void TakeOver(ItemView& view, const RowChange& change, SharedText text);

} // namespace emporium
