// The file system of Linux.
#include "files/FileLayer.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace emporium {

namespace {

namespace fs = std::filesystem;
using Path = FileLayer::Path;
using Handle = FileLayer::Handle;

// What a call of the system came to. A quota that is used up is a full disk to its user.
std::error_code ErrorOf(ssize_t result) {
    if (result >= 0)
        return {};
    return {errno == EDQUOT ? ENOSPC : errno, std::generic_category()};
}

std::error_code Unless(std::errc harmless, std::error_code error) {
    return error == harmless ? std::error_code() : error;
}

FileText Unreadable(std::error_code reason) {
    return {FileText::State::Unreadable, {}, reason};
}

// The text may be kept for long: it takes no more memory than the file has bytes.
FileText ReadOpened(int descriptor, std::size_t largest) {
    constexpr std::size_t chunk = 65536; // for what has no size, or has grown meanwhile
    struct stat status {};
    ::fstat(descriptor, &status);
    if (S_ISDIR(status.st_mode))
        return Unreadable(std::make_error_code(std::errc::is_a_directory));
    if (!S_ISREG(status.st_mode))
        return Unreadable(std::make_error_code(std::errc::operation_not_supported));
    if (static_cast<std::size_t>(status.st_size) > largest)
        return Unreadable(std::make_error_code(std::errc::file_too_large));
    std::string bytes(static_cast<std::size_t>(status.st_size) + 1, '\0'); // one more shows the end
    std::size_t size = 0;
    ssize_t got = 0;
    while ((got = ::read(descriptor, bytes.data() + size, bytes.size() - size)) > 0) {
        size += static_cast<std::size_t>(got);
        if (size > largest)
            return Unreadable(std::make_error_code(std::errc::file_too_large));
        if (size == bytes.size())
            bytes.resize(size + chunk);
    }
    if (const auto error = ErrorOf(got))
        return Unreadable(error);
    bytes.resize(size);
    return {FileText::State::Whole, std::move(bytes), {}};
}

// No reason for what is absent: a path at which nothing can stand.
std::error_code WhyUnknown(std::error_code error) {
    for (const auto absent :
         {std::errc::no_such_file_or_directory, std::errc::not_a_directory,
          std::errc::filename_too_long, std::errc::too_many_symbolic_link_levels})
        error = Unless(absent, error);
    return error;
}

FileText Read(const Path& file, std::size_t largest) {
    // Without O_NONBLOCK a pipe in the file's place would hold the program up for ever.
    const int descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (const auto error = ErrorOf(descriptor)) {
        const auto reason = WhyUnknown(error);
        return reason ? Unreadable(reason) : FileText();
    }
    FileText text = ReadOpened(descriptor, largest);
    ::close(descriptor);
    return text;
}

FileStatus::Kind KindOf(mode_t mode) {
    if (S_ISREG(mode))
        return FileStatus::Kind::File;
    if (S_ISDIR(mode))
        return FileStatus::Kind::Folder;
    return S_ISLNK(mode) ? FileStatus::Kind::Link : FileStatus::Kind::Other;
}

// An administrator may write everything; what is marked as protected stays so for him, too.
FileStatus StatusOf(const Path& path) {
    constexpr mode_t anyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
    FileStatus result;
    struct stat status {};
    if (const auto error = ErrorOf(::lstat(path.c_str(), &status))) {
        result.reason = WhyUnknown(error);
        return result;
    }
    result.kind = KindOf(status.st_mode);
    result.writable = (status.st_mode & anyWrite) != 0 &&
                      ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
    result.hidden = path.filename().native().starts_with('.');
    return result;
}

Path LinkTarget(const Path& link) {
    std::error_code none;
    return fs::read_symlink(link, none);
}

std::error_code EntriesOf(const Path& folder, std::vector<Path>& found) {
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; entry != end; entry.increment(error))
        found.push_back(entry->path());
    return error;
}

bool SameFile(const Path& one, const Path& other) {
    std::error_code absent;
    return fs::equivalent(one, other, absent);
}

std::error_code OpenToWrite(const Path& file, int flags, Handle& handle) {
    handle = ::open(file.c_str(), O_WRONLY | O_CLOEXEC | flags, 0666);
    return ErrorOf(handle);
}

std::error_code CreateNew(const Path& file, Handle& handle) {
    return OpenToWrite(file, O_CREAT | O_EXCL, handle);
}

std::error_code Overwrite(const Path& file, Handle& handle) {
    return OpenToWrite(file, O_TRUNC | O_NONBLOCK, handle);
}

std::error_code Write(Handle handle, std::string_view bytes, std::size_t& written) {
    const ssize_t count = ::write(static_cast<int>(handle), bytes.data(), bytes.size());
    written = static_cast<std::size_t>(count);
    return ErrorOf(count);
}

std::error_code Flush(Handle handle) {
    return ErrorOf(::fsync(static_cast<int>(handle)));
}

std::error_code Close(Handle handle) {
    return ErrorOf(::close(static_cast<int>(handle)));
}

std::error_code CopyMode(const Path& from, const Path& to) {
    struct stat status {};
    const auto error = ErrorOf(::stat(from.c_str(), &status));
    return error ? error : ErrorOf(::chmod(to.c_str(), status.st_mode & 07777U));
}

std::error_code Rename(const Path& from, const Path& to) {
    return ErrorOf(std::rename(from.c_str(), to.c_str()));
}

std::error_code Remove(const Path& file) {
    return Unless(std::errc::no_such_file_or_directory, ErrorOf(::unlink(file.c_str())));
}

int OpenFolder(const Path& folder) {
    return ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

// Some network disks know no flushing of folders: what they promise has to do.
std::error_code FlushFolder(const Path& folder) {
    const int descriptor = OpenFolder(folder);
    if (const auto error = ErrorOf(descriptor))
        return error;
    const std::error_code error = Flush(descriptor);
    ::close(descriptor);
    return Unless(std::errc::invalid_argument, error);
}

std::error_code CreateFolder(const Path& folder) {
    return Unless(std::errc::file_exists, ErrorOf(::mkdir(folder.c_str(), 0777)));
}

std::shared_ptr<void> Keep(int descriptor) {
    return {nullptr, [descriptor](void*) { ::close(descriptor); }};
}

// All copies share a lock on the folder's bytes as their mark, which leaves no file behind. Who
// marks first and looks then is seen by everyone who comes later.
FolderClaim Claim(const Path& folder) {
    const int descriptor = OpenFolder(folder);
    if (ErrorOf(descriptor))
        return {};
    struct flock mark {};
    mark.l_type = F_RDLCK;
    ::fcntl(descriptor, F_OFD_SETLK, &mark);
    struct flock others {};
    others.l_type = F_WRLCK;
    const bool asked = ::fcntl(descriptor, F_OFD_GETLK, &others) == 0;
    return {asked && others.l_type != F_UNLCK, Keep(descriptor)};
}

// False for a file that its last holder has removed.
bool StillStands(int descriptor, const Path& file) {
    struct stat opened {
    }, standing{};
    return ::fstat(descriptor, &opened) == 0 && ::lstat(file.c_str(), &standing) == 0 &&
           opened.st_dev == standing.st_dev && opened.st_ino == standing.st_ino;
}

// Network disks lock a file for all machines, but a folder for each alone.
std::error_code TryToLock(const Path& file, std::shared_ptr<void>& held) {
    Handle handle = 0;
    if (const auto error = OpenToWrite(file, O_CREAT | O_NOFOLLOW | O_NONBLOCK, handle))
        return error;
    const int descriptor = static_cast<int>(handle);
    held = Keep(descriptor);
    const auto error = ErrorOf(::flock(descriptor, LOCK_EX | LOCK_NB));
    if (error == std::errc::operation_would_block || !StillStands(descriptor, file))
        return std::make_error_code(std::errc::device_or_resource_busy);
    return {}; // locked, or on a disk that knows no locks
}

std::error_code Lock(const Path& folder, std::shared_ptr<void>& lock) {
    const Path file = folder / LockName;
    std::shared_ptr<void> held;
    std::error_code error = TryToLock(file, held);
    for (int waited = 0; error == std::errc::device_or_resource_busy && waited < LockMilliseconds;
         waited += LockPauseMilliseconds) {
        std::this_thread::sleep_for(std::chrono::milliseconds(LockPauseMilliseconds));
        error = TryToLock(file, held);
    }
    if (!error)
        lock = {nullptr, [held, file](void*) { ::unlink(file.c_str()); }};
    return error;
}

} // namespace

FileLayer SystemFiles() {
    return {Read,      StatusOf,    LinkTarget,   EntriesOf, SameFile, CreateNew,
            Overwrite, Write,       Flush,        Close,     CopyMode, Rename,
            Remove,    FlushFolder, CreateFolder, Claim,     Lock};
}

Path RunningProgramFolder() {
    return LinkTarget("/proc/self/exe").parent_path();
}

} // namespace emporium
