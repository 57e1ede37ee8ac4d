// The files beside a file, in which its new contents stand until they take its place (see
// FileWriting): making one, and clearing away what a killed run left of them.
#pragma once

#include "files/FileFailure.h"
#include "files/FileLayer.h"

#include <optional>
#include <string_view>

namespace emporium {

/// True if `temporary` is the name of a temporary file beside `target`.
bool IsTemporaryOf(const std::filesystem::path& target, const std::filesystem::path& temporary);

/// Writes all bytes to the opened file, flushes and closes it.
[[nodiscard]] std::error_code WriteAndClose(const FileLayer& files, FileLayer::Handle handle,
                                            std::string_view bytes);

/// Writes the contents into a new file beside the target, which gets the target's permissions if it
/// is to replace one, and tells its name. On failure nothing is left.
[[nodiscard]] std::error_code WriteTemporary(const FileLayer& files,
                                             const std::filesystem::path& target,
                                             std::string_view contents, bool replaces,
                                             std::filesystem::path& temporary);

/// Has the temporary take the target's place, or removes the target if it is empty.
[[nodiscard]] std::error_code PutInPlace(const FileLayer& files,
                                         const std::filesystem::path& temporary,
                                         const std::filesystem::path& target);

/// Removes the temporary files that a killed run left in the folder. Not while another copy of the
/// program may be writing there.
[[nodiscard]] std::optional<FileFailure> RemoveStrays(const FileLayer& files,
                                                      const std::filesystem::path& folder);

/// Whether a file can be created in the folder; nothing is left of it. A folder that is missing is
/// no failure.
[[nodiscard]] std::optional<FileFailure> TryWriting(const FileLayer& files,
                                                    const std::filesystem::path& folder);

} // namespace emporium
