// What the program asks of the file system, one operation a member, so that tests can let the n-th
// one fail or be the last. SystemFiles.cpp holds the real ones. Whole files are read and written
// through FileWriting, which is built on these.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace emporium {

/// What reading a file came to. An unreadable file is never an empty one.
struct FileText {
    enum class State { Whole, Absent, Unreadable };

    State state = State::Absent;
    std::string bytes;      // only if whole
    std::error_code reason; // only if unreadable

    bool IsWhole() const { return state == State::Whole; }
};

struct FileLayer {
    using Path = std::filesystem::path;
    using Handle = std::intptr_t;

    /// The whole file. A folder in the file's place is unreadable, and so is a file above 1 GiB.
    std::function<FileText(const Path& file)> read;

    /// Creates a file for writing; fails with file_exists if there is one of that name.
    std::function<std::error_code(const Path& file, Handle& handle)> createNew;

    /// Writes a part of the bytes, at least one; `written` tells how many.
    std::function<std::error_code(Handle handle, std::string_view bytes, std::size_t& written)>
        write;

    /// Has what was written reach the disk.
    std::function<std::error_code(Handle handle)> flush;

    /// Closes the file, also when it reports a failure.
    std::function<std::error_code(Handle handle)> close;

    /// Gives `to` the permissions of `from`; on Windows only what hides a file.
    std::function<std::error_code(const Path& from, const Path& to)> copyMode;

    /// Renames the file; one of the new name is replaced in the same step.
    std::function<std::error_code(const Path& from, const Path& to)> rename;

    /// Removes the file; one that is not there counts as removed.
    std::function<std::error_code(const Path& file)> remove;

    /// Has renames and removals in the folder reach the disk.
    std::function<std::error_code(const Path& folder)> flushFolder;
};

/// The file system of this machine.
FileLayer SystemFiles();

/// A mark on a folder that this running program uses it, beside any other's. It goes when the last
/// copy of it goes, at the latest with the program.
struct FolderClaim {
    bool takenElsewhere = false; // another running program bears a mark
    std::shared_ptr<void> mark;  // nothing if the folder can't be marked
};

FolderClaim ClaimFolder(const std::filesystem::path& folder);

/// What stands at the path, links followed; `error` if the system can't tell. A write-protected
/// file's owner may not write.
std::filesystem::file_status StatusOf(const std::filesystem::path& path, std::error_code& error);

/// What lies in the folder, in no order, as far as it can be read.
std::vector<std::filesystem::path> EntriesOf(const std::filesystem::path& folder);

/// True for a file that the desktop hides from its user.
bool IsHiddenFile(const std::filesystem::path& file);

/// The folder of the running program, on Linux with links resolved.
std::filesystem::path RunningProgramFolder();

} // namespace emporium
