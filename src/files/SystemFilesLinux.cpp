// The file system of Linux.
#include "files/FileLayer.h"

#include <cerrno>
#include <chrono>
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

// A quota that is used up is a full disk to its user.
std::error_code LastError() {
    return {errno == EDQUOT ? ENOSPC : errno, std::generic_category()};
}

std::error_code Outcome(int result) {
    return result == 0 ? std::error_code() : LastError();
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
    FileText text{FileText::State::Whole, {}, {}};
    text.bytes.resize(static_cast<std::size_t>(status.st_size) + 1); // one more shows the end
    for (std::size_t size = 0;;) {
        const ssize_t got = ::read(descriptor, text.bytes.data() + size, text.bytes.size() - size);
        if (got < 0 && errno != EINTR)
            return Unreadable(LastError());
        if (got == 0) {
            text.bytes.resize(size);
            return text;
        }
        size += got > 0 ? static_cast<std::size_t>(got) : 0;
        if (size > largest)
            return Unreadable(std::make_error_code(std::errc::file_too_large));
        if (size == text.bytes.size())
            text.bytes.resize(size + chunk);
    }
}

bool CannotBeThere(int error) {
    return error == ENOENT || error == ENOTDIR || error == ENAMETOOLONG || error == ELOOP;
}

FileText Read(const Path& file, std::size_t largest) {
    // Without O_NONBLOCK a pipe in the file's place would hold the program up for ever.
    const int descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (descriptor < 0)
        return CannotBeThere(errno) ? FileText() : Unreadable(LastError());
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
    if (::lstat(path.c_str(), &status) != 0) {
        if (!CannotBeThere(errno))
            result.reason = LastError();
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

std::vector<Path> EntriesOf(const Path& folder) {
    std::vector<Path> entries;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error))
        entries.push_back(entry->path());
    return entries;
}

bool SameFile(const Path& one, const Path& other) {
    std::error_code absent;
    return fs::equivalent(one, other, absent);
}

std::error_code OpenToWrite(const Path& file, int flags, Handle& handle) {
    constexpr mode_t mode = 0666;
    const int descriptor = ::open(file.c_str(), O_WRONLY | O_CLOEXEC | flags, mode);
    if (descriptor < 0)
        return LastError();
    handle = descriptor;
    return {};
}

std::error_code CreateNew(const Path& file, Handle& handle) {
    return OpenToWrite(file, O_CREAT | O_EXCL, handle);
}

std::error_code Overwrite(const Path& file, Handle& handle) {
    return OpenToWrite(file, O_TRUNC | O_NONBLOCK, handle);
}

std::error_code Write(Handle handle, std::string_view bytes, std::size_t& written) {
    ssize_t count = 0;
    do {
        count = ::write(static_cast<int>(handle), bytes.data(), bytes.size());
    } while (count < 0 && errno == EINTR);
    if (count < 0)
        return LastError();
    written = static_cast<std::size_t>(count);
    return {};
}

std::error_code Flush(Handle handle) {
    return Outcome(::fsync(static_cast<int>(handle)));
}

std::error_code Close(Handle handle) {
    return Outcome(::close(static_cast<int>(handle)));
}

std::error_code CopyMode(const Path& from, const Path& to) {
    struct stat status {};
    if (::stat(from.c_str(), &status) != 0)
        return LastError();
    return Outcome(::chmod(to.c_str(), status.st_mode & 07777U));
}

std::error_code Rename(const Path& from, const Path& to) {
    return Outcome(std::rename(from.c_str(), to.c_str()));
}

std::error_code Remove(const Path& file) {
    return ::unlink(file.c_str()) == 0 || errno == ENOENT ? std::error_code() : LastError();
}

int OpenFolder(const Path& folder) {
    return ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

// Some network disks know no flushing of folders: what they promise has to do.
std::error_code FlushFolder(const Path& folder) {
    const int descriptor = OpenFolder(folder);
    if (descriptor < 0)
        return LastError();
    const std::error_code error = Flush(descriptor);
    ::close(descriptor);
    return error == std::errc::invalid_argument ? std::error_code() : error;
}

std::error_code CreateFolder(const Path& folder) {
    constexpr mode_t mode = 0777;
    return ::mkdir(folder.c_str(), mode) == 0 || errno == EEXIST ? std::error_code() : LastError();
}

std::shared_ptr<void> Keep(int descriptor) {
    return {nullptr, [descriptor](void*) { ::close(descriptor); }};
}

// Two kinds of locks that do not know each other: all copies share one on the folder's bytes as
// their mark, and the one that writes holds the folder itself. Neither leaves a file behind,
// whatever ends the program. Who marks first and looks then is seen by everyone who comes later.
FolderClaim Claim(const Path& folder) {
    const int descriptor = OpenFolder(folder);
    if (descriptor < 0)
        return {};
    struct flock mark {};
    mark.l_type = F_RDLCK;
    ::fcntl(descriptor, F_OFD_SETLK, &mark);
    struct flock others {};
    others.l_type = F_WRLCK;
    const bool asked = ::fcntl(descriptor, F_OFD_GETLK, &others) == 0;
    return {asked && others.l_type != F_UNLCK, Keep(descriptor)};
}

std::error_code Lock(const Path& folder, std::shared_ptr<void>& lock) {
    const int descriptor = OpenFolder(folder);
    if (descriptor < 0)
        return LastError();
    lock = Keep(descriptor);
    for (int waited = 0; ::flock(descriptor, LOCK_EX | LOCK_NB) != 0;) {
        if (errno != EWOULDBLOCK && errno != EINTR)
            return {};
        if (waited >= LockMilliseconds)
            return std::make_error_code(std::errc::device_or_resource_busy);
        std::this_thread::sleep_for(std::chrono::milliseconds(LockPauseMilliseconds));
        waited += LockPauseMilliseconds;
    }
    return {};
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
