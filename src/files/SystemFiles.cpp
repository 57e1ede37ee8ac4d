// The one file that knows which system the program runs on.
#include "files/FileLayer.h"

#include <cerrno>

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace emporium {

namespace {

namespace fs = std::filesystem;
using Path = FileLayer::Path;
using Handle = FileLayer::Handle;

// Far above every file of the program; what is larger would take the memory that others need.
constexpr std::size_t LargestFile = std::size_t{1} << 30U;

FileText TooLarge() {
    return {FileText::State::Unreadable, {}, std::make_error_code(std::errc::file_too_large)};
}

} // namespace

#ifdef _WIN32

namespace {

// Virus scanners and sync clients hold a file for moments: these failures pass.
constexpr int Attempts = 10;
constexpr DWORD PauseMilliseconds = 30;

// The standard library takes a network or a disk out of reach for a missing file, and has no words
// for some failures.
std::error_code ToError(DWORD error) {
    enum : DWORD { virus = 225, noCloud = 362, cloudOutOfReach = 388, quotaUsedUp = 1295 };
    switch (error) {
    case ERROR_NOT_READY:
    case ERROR_BAD_NETPATH:
    case ERROR_DEV_NOT_EXIST:
    case ERROR_NETNAME_DELETED:
    case ERROR_BAD_NET_NAME:
    case ERROR_FILE_CORRUPT:
    case noCloud:
    case cloudOutOfReach:
        return std::make_error_code(std::errc::io_error);
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
        return std::make_error_code(std::errc::invalid_argument);
    case quotaUsedUp:
        return std::make_error_code(std::errc::no_space_on_device);
    case virus:
        return std::make_error_code(std::errc::operation_not_permitted);
    default:
        return {static_cast<int>(error), std::system_category()};
    }
}

std::error_code LastError() {
    return ToError(GetLastError());
}

template <typename Call> std::error_code WithRetries(Call call) {
    for (int attempt = 1;; ++attempt) {
        if (call())
            return {};
        const DWORD error = GetLastError();
        const bool passing = error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED ||
                             error == ERROR_LOCK_VIOLATION;
        if (!passing || attempt == Attempts)
            return ToError(error);
        Sleep(PauseMilliseconds);
    }
}

// A path of more than 260 characters is taken in this form only, in which "/" and ".." mean
// nothing. The standard library's own cleaning would take the name of a server for a folder.
std::wstring SystemPath(const Path& path) {
    constexpr std::size_t limit = MAX_PATH - 12; // a folder's path leaves room for a short name
    std::wstring full(GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
    full.resize(
        GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    if (full.size() < limit || full.starts_with(L"\\\\?\\"))
        return full;
    return full.starts_with(L"\\\\") ? L"\\\\?\\UNC" + full.substr(1) : L"\\\\?\\" + full;
}

DWORD AttributesOf(const Path& path) {
    return GetFileAttributesW(SystemPath(path).c_str());
}

bool IsFolder(const Path& path) {
    const DWORD attributes = AttributesOf(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// The system lets a name hold halves of characters, which no text can.
bool IsText(const wchar_t* name) {
    return WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, name, -1, nullptr, 0, nullptr,
                               nullptr) > 0;
}

// Folders can be opened, too.
std::error_code Open(const Path& path, DWORD access, DWORD sharing, DWORD disposition,
                     HANDLE& handle) {
    return WithRetries([&] {
        handle = CreateFileW(SystemPath(path).c_str(), access, sharing, nullptr, disposition,
                             FILE_ATTRIBUTE_NORMAL | FILE_FLAG_BACKUP_SEMANTICS, nullptr);
        return handle != INVALID_HANDLE_VALUE;
    });
}

HANDLE ToHandle(Handle handle) {
    return reinterpret_cast<HANDLE>(handle); // NOLINT(performance-no-int-to-ptr)
}

FileText ReadOpened(HANDLE handle) {
    FileText text{FileText::State::Whole, {}, {}};
    char buffer[65536];
    DWORD got = 0;
    do {
        if (!ReadFile(handle, buffer, sizeof buffer, &got, nullptr))
            return {FileText::State::Unreadable, {}, LastError()};
        text.bytes.append(buffer, got);
        if (text.bytes.size() > LargestFile)
            return TooLarge();
    } while (got > 0);
    text.bytes.shrink_to_fit(); // it may be kept for long
    return text;
}

FileText Read(const Path& file) {
    if (IsFolder(file))
        return {FileText::State::Unreadable, {}, std::make_error_code(std::errc::is_a_directory)};
    HANDLE handle = INVALID_HANDLE_VALUE;
    const std::error_code error =
        Open(file, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_DELETE, OPEN_EXISTING, handle);
    if (error == std::errc::no_such_file_or_directory)
        return {FileText::State::Absent, {}, {}};
    if (error)
        return {FileText::State::Unreadable, {}, error};
    FileText text = ReadOpened(handle);
    CloseHandle(handle);
    return text;
}

std::error_code CreateNew(const Path& file, Handle& handle) {
    HANDLE created = INVALID_HANDLE_VALUE;
    const std::error_code error = Open(file, GENERIC_WRITE, 0, CREATE_NEW, created);
    handle = reinterpret_cast<Handle>(created);
    return error;
}

std::error_code Write(Handle handle, std::string_view bytes, std::size_t& written) {
    DWORD count = 0;
    const auto size = static_cast<DWORD>(bytes.size() < 1U << 30U ? bytes.size() : 1U << 30U);
    if (!WriteFile(ToHandle(handle), bytes.data(), size, &count, nullptr))
        return LastError();
    written = count;
    return {};
}

std::error_code Flush(Handle handle) {
    return FlushFileBuffers(ToHandle(handle)) ? std::error_code() : LastError();
}

std::error_code Close(Handle handle) {
    return CloseHandle(ToHandle(handle)) ? std::error_code() : LastError();
}

// A new file has the rights of its folder, which its predecessor mostly had, too.
std::error_code CopyMode(const Path& from, const Path& to) {
    constexpr DWORD kept = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    const DWORD attributes = AttributesOf(from);
    const bool copied =
        attributes != INVALID_FILE_ATTRIBUTES &&
        SetFileAttributesW(SystemPath(to).c_str(), FILE_ATTRIBUTE_ARCHIVE | (attributes & kept));
    return copied ? std::error_code() : LastError();
}

std::error_code Rename(const Path& from, const Path& to) {
    return WithRetries([&] {
        return MoveFileExW(SystemPath(from).c_str(), SystemPath(to).c_str(),
                           MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
    });
}

std::error_code Remove(const Path& file) {
    const std::error_code error =
        WithRetries([&] { return DeleteFileW(SystemPath(file).c_str()) != 0; });
    return error == std::errc::no_such_file_or_directory ? std::error_code() : error;
}

// MOVEFILE_WRITE_THROUGH has flushed already.
std::error_code FlushFolder(const Path&) {
    return {};
}

} // namespace

// The folder stays open for writing, which hinders nobody: whoever opens a folder lets others do
// so. Only the test at the beginning does not, and so it fails beside another copy, on whatever
// machine that one runs.
FolderClaim ClaimFolder(const Path& folder) {
    constexpr DWORD sharing = FILE_SHARE_READ | FILE_SHARE_DELETE;
    HANDLE mark = INVALID_HANDLE_VALUE;
    const auto error = Open(folder, FILE_ADD_FILE, sharing, OPEN_EXISTING, mark);
    const bool taken = error == std::errc::device_or_resource_busy;
    if (!error)
        CloseHandle(mark);
    if (Open(folder, FILE_ADD_FILE, sharing | FILE_SHARE_WRITE, OPEN_EXISTING, mark))
        return {taken, nullptr};
    return {taken, std::shared_ptr<void>(mark, CloseHandle)};
}

fs::file_status StatusOf(const Path& path, std::error_code& error) {
    error.clear();
    const DWORD attributes = AttributesOf(path);
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        const std::error_code reason = LastError();
        if (reason != std::errc::no_such_file_or_directory)
            error = reason;
        return fs::file_status(error ? fs::file_type::none : fs::file_type::not_found);
    }
    const bool folder = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    const bool fixed = !folder && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
    return fs::file_status(folder ? fs::file_type::directory : fs::file_type::regular,
                           fixed ? fs::perms::owner_read
                                 : fs::perms::owner_read | fs::perms::owner_write);
}

std::vector<Path> EntriesOf(const Path& folder) {
    std::vector<Path> entries;
    WIN32_FIND_DATAW found;
    HANDLE search = FindFirstFileW(SystemPath(folder / "*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return entries;
    do {
        const std::wstring_view name = found.cFileName;
        if (name != L"." && name != L".." && IsText(found.cFileName))
            entries.push_back(folder / name);
    } while (FindNextFileW(search, &found));
    FindClose(search);
    return entries;
}

bool IsHiddenFile(const Path& file) {
    const DWORD attributes = AttributesOf(file);
    return attributes != INVALID_FILE_ATTRIBUTES &&
           (attributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) != 0;
}

Path RunningProgramFolder() {
    std::wstring name(32768, L'\0');
    name.resize(GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size())));
    return Path(name).parent_path();
}

#else

namespace {

// A quota that is used up is a full disk to its user.
std::error_code LastError() {
    return {errno == EDQUOT ? ENOSPC : errno, std::generic_category()};
}

// The text may be kept for long: it takes no more memory than the file has bytes.
FileText ReadOpened(int descriptor) {
    constexpr std::size_t chunk = 65536; // for what has no size, or has grown meanwhile
    struct stat status {};
    ::fstat(descriptor, &status);
    if (static_cast<std::size_t>(status.st_size) > LargestFile)
        return TooLarge();
    FileText text{FileText::State::Whole, {}, {}};
    text.bytes.resize(static_cast<std::size_t>(status.st_size) + 1); // one more shows the end
    for (std::size_t size = 0;;) {
        const ssize_t got = ::read(descriptor, text.bytes.data() + size, text.bytes.size() - size);
        if (got < 0 && errno != EINTR)
            return {FileText::State::Unreadable, {}, LastError()};
        if (got == 0) {
            text.bytes.resize(size);
            return text;
        }
        size += got > 0 ? static_cast<std::size_t>(got) : 0;
        if (size > LargestFile)
            return TooLarge();
        if (size == text.bytes.size())
            text.bytes.resize(size + chunk);
    }
}

FileText Read(const Path& file) {
    // Without O_NONBLOCK a pipe in the file's place would hold the program up for ever.
    const int descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0 && (errno == ENOENT || errno == ENOTDIR))
        return {FileText::State::Absent, {}, {}};
    if (descriptor < 0)
        return {FileText::State::Unreadable, {}, LastError()};
    FileText text = ReadOpened(descriptor);
    ::close(descriptor);
    return text;
}

std::error_code CreateNew(const Path& file, Handle& handle) {
    constexpr mode_t mode = 0666;
    const int descriptor = ::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (descriptor < 0)
        return LastError();
    handle = descriptor;
    return {};
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
    return ::fsync(static_cast<int>(handle)) == 0 ? std::error_code() : LastError();
}

std::error_code Close(Handle handle) {
    return ::close(static_cast<int>(handle)) == 0 ? std::error_code() : LastError();
}

std::error_code CopyMode(const Path& from, const Path& to) {
    struct stat status {};
    if (::stat(from.c_str(), &status) != 0)
        return LastError();
    return ::chmod(to.c_str(), status.st_mode & 07777U) == 0 ? std::error_code() : LastError();
}

std::error_code Rename(const Path& from, const Path& to) {
    return std::rename(from.c_str(), to.c_str()) == 0 ? std::error_code() : LastError();
}

std::error_code Remove(const Path& file) {
    std::error_code error;
    fs::remove(file, error);
    return error;
}

std::error_code FlushFolder(const Path& folder) {
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return LastError();
    const std::error_code error = Flush(descriptor);
    ::close(descriptor);
    return error;
}

} // namespace

// A lock on the folder itself leaves no file behind, whatever ends the program. All copies share
// it; that it can't be had alone tells of others.
FolderClaim ClaimFolder(const Path& folder) {
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return {};
    const bool taken = ::flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    ::flock(descriptor, LOCK_SH | LOCK_NB);
    return {taken, std::shared_ptr<void>(nullptr, [descriptor](void*) { ::close(descriptor); })};
}

fs::file_status StatusOf(const Path& path, std::error_code& error) {
    const fs::file_status status = fs::status(path, error);
    if (fs::status_known(status))
        error.clear(); // that nothing is there is an answer
    return status;
}

std::vector<Path> EntriesOf(const Path& folder) {
    std::vector<Path> entries;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error))
        entries.push_back(entry->path());
    return entries;
}

bool IsHiddenFile(const Path& file) {
    const std::string name = file.filename().native();
    return !name.empty() && name.front() == '.';
}

Path RunningProgramFolder() {
    std::error_code error;
    return fs::read_symlink("/proc/self/exe", error).parent_path();
}

#endif

FileLayer SystemFiles() {
    return {Read, CreateNew, Write, Flush, Close, CopyMode, Rename, Remove, FlushFolder};
}

} // namespace emporium
