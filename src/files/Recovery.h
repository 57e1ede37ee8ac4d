// What an interrupted write announced is carried out: before the next write and at the next start,
// as often as it takes (see FileWriting).
#pragma once

#include "files/FileFailure.h"
#include "files/FileLayer.h"

#include <optional>
#include <string>
#include <vector>

namespace emporium {

struct [[nodiscard]] Recovery {
    std::optional<FileFailure> failure; // it can't be finished now; nothing may be written before
    std::vector<std::string> notices;   // what the user has to know, a German line each
};

/// Carries out what the folder's journal announces, in its order, if there is one. A file that
/// holds neither what it held before nor what was announced is somebody's later work: it stays, and
/// so do the files behind it. A journal that is none of this program's, or whose contents are lost,
/// is carried out nowhere and set aside under another name.
Recovery FinishJournal(const FileLayer& files, const std::filesystem::path& folder);

} // namespace emporium
