// The one road by which a file is written: the complete new contents of one or several files, and
// afterwards all of them stand or none does, also if the program is killed, the disk is full or an
// operation fails. A single file is written beside its place and renamed over it. Several files
// are bound together by a journal that the next start finishes or discards.
#pragma once

#include "base/FileLayer.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace emporium {

/// What failed, and why.
struct FileFailure {
    std::filesystem::path file;
    std::error_code reason;
};

struct FileChange {
    std::filesystem::path file;
    std::optional<std::string> contents; // nothing: the file is removed
};

/// Carries out all changes or none. Links are followed, permissions kept; a write-protected file is
/// refused. More than one change needs `journalFolder`, the folder that FinishInterruptedWrites
/// looks at. On failure every file stands as before.
std::optional<FileFailure> WriteFiles(const FileLayer& files,
                                      const std::filesystem::path& journalFolder,
                                      const std::vector<FileChange>& changes);

/// One file, see WriteFiles.
std::optional<FileFailure> WriteFile(const FileLayer& files, const std::filesystem::path& file,
                                     std::string contents);

/// Finishes what a killed run had committed in the folder, discards what it had not, and removes
/// its temporary files. Runs before anything in the folder is read; running it again is harmless.
std::optional<FileFailure> FinishInterruptedWrites(const FileLayer& files,
                                                   const std::filesystem::path& journalFolder);

/// The reason in German, a whole sentence.
std::string ReasonText(const std::error_code& reason);

/// The text of a box: what could not be done, then the file and the reason.
std::string FailureText(std::string_view what, const FileFailure& failure);

} // namespace emporium
