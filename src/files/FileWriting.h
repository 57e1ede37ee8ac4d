// The one road by which a file is written: the complete new contents of one or several files, and
// afterwards all of them stand or none does, also if the program is killed, the disk is full or an
// operation fails. A single file is written beside its place and renamed over it. Several files
// are bound together by a journal; what it announces is carried out before any file is rewritten.
#pragma once

#include "files/FileFailure.h"
#include "files/FileLayer.h"

#include <optional>
#include <string>
#include <vector>

namespace emporium {

struct FileChange {
    std::filesystem::path file;
    std::optional<std::string> contents; // nothing: the file is removed
};

/// Carries out all changes or none, removals last. Links are followed, permissions kept; a
/// write-protected file is refused, and so are two changes that lead to one file. More than one
/// change needs `journalFolder`, the folder that FinishJournal looks at. On failure every file
/// stands as before; if even that could not be brought about, the next FinishJournal carries out
/// all changes.
std::optional<FileFailure> WriteFiles(const FileLayer& files,
                                      const std::filesystem::path& journalFolder,
                                      const std::vector<FileChange>& changes);

/// One file, see WriteFiles.
std::optional<FileFailure> WriteFile(const FileLayer& files, const std::filesystem::path& file,
                                     std::string contents);

/// Carries out what the folder's journal announces, if there is one. Runs before the files are read
/// that are to be rewritten. A journal that can't be carried out stays, and its failure is
/// returned; one whose contents are lost goes, and is told once.
std::optional<FileFailure> FinishJournal(const FileLayer& files,
                                         const std::filesystem::path& journalFolder);

/// FinishJournal and RemoveStrays.
std::optional<FileFailure> FinishInterruptedWrites(const FileLayer& files,
                                                   const std::filesystem::path& journalFolder);

} // namespace emporium
