// The file system as a struct of functions: nothing in the program asks the disk by another road,
// so that a test can put a disk of its own in its place. SystemFilesLinux.cpp and
// SystemFilesWindows.cpp hold the real ones. Whole files are written through FileWriting, which is
// built on these.
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

/// What stands at a path; a link is a link, wherever it leads.
struct FileStatus {
    enum class Kind { Absent, File, Folder, Link, Other };

    Kind kind = Kind::Absent;
    bool writable = false;  // by this user, and not write-protected
    bool hidden = false;    // the desktop hides it from its user
    std::error_code reason; // the system can't tell what stands there
};

/// A mark on a folder that this running program uses it, beside any other's. It goes when the last
/// copy of it goes, at the latest with the program.
struct FolderClaim {
    bool takenElsewhere = false; // another running program bears a mark
    std::shared_ptr<void> mark;  // nothing if the folder can't be marked
};

struct FileLayer {
    using Path = std::filesystem::path;
    using Handle = std::intptr_t;

    /// The whole file, links followed. What is no file in the end, a folder or a pipe, is
    /// unreadable, and so is a file of more bytes than `largest`, without being read.
    std::function<FileText(const Path& file, std::size_t largest)> read;

    /// What stands at the path. A name that no file can bear is absent.
    std::function<FileStatus(const Path& path)> status;

    /// Where a link leads to, as it says itself; empty for what is no link.
    std::function<Path(const Path& link)> linkTarget;

    /// Adds what lies in the folder, in no order, as far as it can be read.
    std::function<std::error_code(const Path& folder, std::vector<Path>& found)> entries;

    /// True if both paths lead to one file.
    std::function<bool(const Path& one, const Path& other)> sameFile;

    /// Creates a file for writing; fails with file_exists if there is one of that name.
    std::function<std::error_code(const Path& file, Handle& handle)> createNew;

    /// Opens a file that is there and empties it.
    std::function<std::error_code(const Path& file, Handle& handle)> overwrite;

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

    /// Makes a folder in one that is there; no failure if it is there already.
    std::function<std::error_code(const Path& folder)> createFolder;

    /// Marks the folder as used by this program, see FolderClaim.
    std::function<FolderClaim(const Path& folder)> claim;

    /// Waits, for three seconds at most, until no other program writes into the folder, and keeps
    /// them from it as long as `lock` lives. Fails with device_or_resource_busy. On a disk that
    /// knows no locks there is no failure and no lock.
    std::function<std::error_code(const Path& folder, std::shared_ptr<void>& lock)> lock;
};

/// The file system of this machine.
FileLayer SystemFiles();

/// The folder of the running program, on Linux with links resolved.
std::filesystem::path RunningProgramFolder();

/// Far above every category and page, and far above every list and picture. What is larger would
/// take the time and the memory that others need.
inline constexpr std::size_t LargestFile = std::size_t{1} << 28U;
inline constexpr std::size_t LargestList = std::size_t{1} << 24U;

/// The file in the folder that bears the lock, as long as it is held. One that a killed run left
/// locks nothing and goes with the next lock.
inline constexpr const char* LockName = "Schreibsperre.orvan-lock";

/// How long `lock` waits, and how long it sleeps between two tries.
inline constexpr int LockMilliseconds = 3000;
inline constexpr int LockPauseMilliseconds = 10;

} // namespace emporium
