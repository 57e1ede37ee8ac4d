// One hand at a time: whoever compares files of the categories with what he knows of them and
// writes them holds the turn meanwhile, against other copies of the program, on other machines too.
#pragma once

#include "base/Platform.h"
#include "files/FileWriting.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace emporium {

/// What an operation on the stored data came to, and what the user is to be told of it.
struct [[nodiscard]] Outcome {
    bool stands = false; // what was wanted is on the disk, or will be when a failure has passed
    std::string text;    // of a box that opens when the turn is over; mostly empty
};

/// Waits some seconds for the turn, finishes an interrupted write and then does the work, in which
/// no box may open. What that write has left to tell stands above the work's text. If the turn
/// can't be had the work is not done, and the text says why.
Outcome InTurn(const Disk& disk, const std::function<Outcome()>& work);

/// Opens the outcome's box if there is something to tell; true if what was wanted stands.
bool Tell(const Platform& platform, const Outcome& outcome);

/// Writes files of the categories' folder, see WriteFiles; the caller has the turn. `what` begins
/// the text of a failure: what could not be done.
Outcome WriteChanges(const Disk& disk, const std::vector<FileChange>& changes,
                     std::string_view what);

/// Finishes an interrupted write before its files are read, if there is one; a line for the user if
/// that can't be done yet, and what is read may be out of date.
std::string FinishBeforeReading(const Disk& disk);

} // namespace emporium
