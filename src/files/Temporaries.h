// The files beside a file, in which its new contents stand until they take its place (see
// FileWriting): making one, and clearing away what a killed run left of them.
#pragma once

#include "files/FileFailure.h"
#include "files/FileLayer.h"

#include <optional>
#include <string_view>

namespace emporium {

/// Where the path leads in the end, so that a link stays a link; `error` if that can't be found
/// out. On Windows the standard library sees no links: there a file takes the link's place.
std::filesystem::path FollowLinks(std::filesystem::path file, std::error_code& error);

/// Writes the contents into a new file beside the target, which gets the target's permissions if it
/// is to replace one, and tells its name. On failure nothing is left.
std::error_code WriteTemporary(const FileLayer& files, const std::filesystem::path& target,
                               std::string_view contents, bool replaces,
                               std::filesystem::path& temporary);

/// Removes the temporary files that a killed run left in the folder or beside the target of a link
/// in it. Not while another copy of the program may be writing there.
std::optional<FileFailure> RemoveStrays(const FileLayer& files,
                                        const std::filesystem::path& folder);

/// Whether a file can be created in the folder; nothing is left of it. A folder that is missing is
/// no failure.
std::optional<FileFailure> TryWriting(const FileLayer& files, const std::filesystem::path& folder);

} // namespace emporium
