// One hand at a time: whoever compares files of the categories with what he knows of them and
// writes them holds the turn meanwhile, against other copies of the program, on other machines too.
#pragma once

#include "base/Disk.h"
#include "files/FileFailure.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace emporium {

/// The turn lasts as long as this lives. No box may open meanwhile.
struct [[nodiscard]] WriteTurn {
    std::shared_ptr<void> lock;
    std::string refusal;              // why nothing may be written, the text of a box; mostly empty
    std::vector<std::string> notices; // of an interrupted write that was finished, a line each
};

/// Waits some seconds for the turn, and finishes an interrupted write before anything else.
WriteTurn TakeTurn(const Disk& disk);

/// The text of a box that opens after the turn: its notices, then the text; empty if both are.
std::string AfterTurn(const WriteTurn& turn, std::string_view text);

/// Finishes an interrupted write before its files are read, if there is one; a line for the user if
/// that can't be done yet, and what is read may be out of date.
std::string FinishBeforeReading(const Disk& disk);

/// The text of a box: the change stands, but one file is still to be written.
std::string StillToCome(const FileFailure& failure);

} // namespace emporium
