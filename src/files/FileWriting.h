// The one road by which a file is written: the complete new contents of one or several files, and
// afterwards all of them stand or none does, also if the program is killed, the disk is full or an
// operation fails. A single file is written beside its place and renamed over it. Several files
// are bound together by a journal. Until the first rename a failure drops everything; after it the
// only way is forward: what could not be written yet follows later (see Recovery).
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

/// What a write came to.
struct [[nodiscard]] WriteResult {
    bool stands = false; // the new contents stand, or will when a failure has passed
    std::optional<FileFailure> failure;
};

/// Writes the program's own files, all of one folder: all changes or none, in their order,
/// permissions kept. What is a link, a folder, a pipe or write-protected is refused, and so are two
/// changes that lead to one file, and everything while a journal stands in the folder.
WriteResult WriteFiles(const FileLayer& files, const std::filesystem::path& folder,
                       const std::vector<FileChange>& changes);

/// Writes a file where the user wants it; links are followed. In a folder that may not be written,
/// a file that may is written in its place, which an interruption can spoil.
[[nodiscard]] std::optional<FileFailure>
WriteDocument(const FileLayer& files, const std::filesystem::path& file, std::string_view contents);

} // namespace emporium
