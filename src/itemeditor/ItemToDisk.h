// The road of one changed record to the disk: what its file holds now is compared with what was
// read, the file is written, and the view takes the change over.
#pragma once

#include "base/Outcome.h"
#include "files/FileWriting.h"
#include "itemeditor/ItemEditor.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace emporium {

/// How the user is asked and told.
struct WriteWording {
    std::string_view failed; // begins the box of a failure
    std::string_view
        question; // whether to go on over another program's change; follows the file's name
};

extern const WriteWording SavingWords;
extern const WriteWording DeletingWords;

/// Adds what has to be written together with the row's file, from what the disk holds at that
/// moment. If that does not stand, nothing is written.
using MoreChanges = std::function<Outcome(std::vector<FileChange>& changes)>;

/// Writes the file of the view that the row belongs to, and takes the change over into the records.
/// If another program has changed the file, the user is asked; if he does not want to write over
/// that, the view is read again and the form stays. False, after a box, if nothing was written.
bool WriteRow(ItemEditor& editor, const Platform& platform, const RowChange& change,
              const WriteWording& words, const MoreChanges& more = {});

/// Adds the file of a category with the record behind its last one. Adds nothing, and says why, if
/// that file can't be read whole or is full, or if the category is gone. The caller holds the turn.
Outcome AppendTo(const Disk& disk, const std::string& category, const ItemRecord& record,
                 std::vector<FileChange>& changes);

} // namespace emporium
