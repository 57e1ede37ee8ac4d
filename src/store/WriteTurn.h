// One hand at a time: whoever compares files of the categories with what he knows of them and
// writes them holds the turn meanwhile, against other copies of the program, on other machines too.
#pragma once

#include "base/Outcome.h"
#include "files/FileWriting.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace emporium {

/// Waits some seconds for the turn, finishes an interrupted write and then does the work, in which
/// no box may open. What that write has left to tell stands above the work's text. If the turn
/// can't be had the work is not done, and the text says why.
Outcome InTurn(const Disk& disk, const std::function<Outcome()>& work);

/// Writes files of the categories' folder, see WriteFiles; the caller has the turn. `what` begins
/// the text of a failure: what could not be done.
Outcome WriteChanges(const Disk& disk, const std::vector<FileChange>& changes,
                     std::string_view what);

/// Finishes an interrupted write before its files are read, if there is one; a line for the user if
/// that can't be done yet, and what is read may be out of date.
std::string FinishBeforeReading(const Disk& disk);

} // namespace emporium
