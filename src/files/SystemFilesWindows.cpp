// The file system of Windows.
#include "files/FileLayer.h"

#include "files/WindowsCalls.h"

namespace emporium {

using namespace windows;

namespace {

using Path = FileLayer::Path;
using Handle = FileLayer::Handle;

FileText Unreadable(std::error_code reason) {
    return {FileText::State::Unreadable, {}, reason};
}

// The system lets a name hold halves of characters, which no text can.
bool IsText(const wchar_t* name) {
    return WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, name, -1, nullptr, 0, nullptr,
                               nullptr) > 0;
}

HANDLE ToHandle(Handle handle) {
    return reinterpret_cast<HANDLE>(handle); // NOLINT(performance-no-int-to-ptr)
}

FileText ReadOpened(HANDLE handle, std::size_t largest) {
    FileText text{FileText::State::Whole, {}, {}};
    LARGE_INTEGER size{};
    if (GetFileSizeEx(handle, &size) && static_cast<std::uint64_t>(size.QuadPart) > largest)
        return Unreadable(std::make_error_code(std::errc::file_too_large));
    char buffer[65536];
    DWORD got = 0;
    do {
        if (!ReadFile(handle, buffer, sizeof buffer, &got, nullptr))
            return Unreadable(LastError());
        text.bytes.append(buffer, got);
        if (text.bytes.size() > largest)
            return Unreadable(std::make_error_code(std::errc::file_too_large));
    } while (got > 0);
    text.bytes.shrink_to_fit(); // it may be kept for long
    return text;
}

FileText Read(const Path& file, std::size_t largest) {
    const DWORD attributes = AttributesOf(file);
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
        return Unreadable(std::make_error_code(std::errc::is_a_directory));
    HANDLE handle = INVALID_HANDLE_VALUE;
    const std::error_code error =
        Open(file, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_DELETE, OPEN_EXISTING, handle);
    if (error == std::errc::no_such_file_or_directory)
        return {};
    if (error)
        return Unreadable(error);
    const bool isFile = GetFileType(handle) == FILE_TYPE_DISK;
    FileText text = isFile ? ReadOpened(handle, largest)
                           : Unreadable(std::make_error_code(std::errc::operation_not_supported));
    CloseHandle(handle);
    return text;
}

std::error_code OpenToWrite(const Path& file, DWORD disposition, Handle& handle) {
    HANDLE opened = INVALID_HANDLE_VALUE;
    const std::error_code error = Open(file, GENERIC_WRITE, 0, disposition, opened);
    handle = reinterpret_cast<Handle>(opened);
    return error;
}

std::error_code CreateNew(const Path& file, Handle& handle) {
    return OpenToWrite(file, CREATE_NEW, handle);
}

std::error_code Overwrite(const Path& file, Handle& handle) {
    return OpenToWrite(file, TRUNCATE_EXISTING, handle);
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

std::error_code CreateFolder(const Path& folder) {
    if (CreateDirectoryW(SystemPath(folder).c_str(), nullptr))
        return {};
    return GetLastError() == ERROR_ALREADY_EXISTS ? std::error_code() : LastError();
}

// Open as long as the result lives; nothing if it can't be opened.
std::shared_ptr<void> Hold(const Path& path, DWORD access, DWORD sharing) {
    HANDLE handle = INVALID_HANDLE_VALUE;
    return Open(path, access, sharing, OPEN_EXISTING, handle)
               ? nullptr
               : std::shared_ptr<void>(handle, CloseHandle);
}

// The folder stays open for writing, which hinders nobody: whoever opens a folder lets others do
// so. Only the test does not, and so it fails beside another copy, on whatever machine that one
// runs. Copies that start in the same instant test and mark one after the other.
FolderClaim Claim(const Path& folder) {
    constexpr DWORD sharing = FILE_SHARE_READ | FILE_SHARE_DELETE;
    const auto guard = Hold(folder, DELETE, FILE_SHARE_READ | FILE_SHARE_WRITE);
    const bool alone = Hold(folder, FILE_ADD_FILE, sharing) != nullptr;
    auto mark = Hold(folder, FILE_ADD_FILE, sharing | FILE_SHARE_WRITE);
    return {mark && !alone, mark};
}

// A folder can't be locked here; a file in it can, and goes with its last handle. A link in its
// place is not followed: it is what goes, and not the file that it leads to.
std::error_code Lock(const Path& folder, std::shared_ptr<void>& lock) {
    constexpr DWORD flags =
        FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE | FILE_FLAG_OPEN_REPARSE_POINT;
    const std::wstring file = SystemPath(folder / LockName);
    for (int waited = 0;; waited += LockPauseMilliseconds) {
        HANDLE handle = CreateFileW(file.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, OPEN_ALWAYS,
                                    flags, nullptr);
        if (handle != INVALID_HANDLE_VALUE) {
            lock = std::shared_ptr<void>(handle, CloseHandle);
            return {};
        }
        const DWORD error = GetLastError();
        if (error != ERROR_SHARING_VIOLATION && error != ERROR_ACCESS_DENIED &&
            error != ERROR_DELETE_PENDING)
            return ToError(error);
        if (waited >= LockMilliseconds)
            return error == ERROR_ACCESS_DENIED
                       ? ToError(error)
                       : std::make_error_code(std::errc::device_or_resource_busy);
        Sleep(LockPauseMilliseconds);
    }
}

FileStatus StatusOf(const Path& path) {
    FileStatus status;
    const DWORD attributes = AttributesOf(path);
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        const std::error_code reason = LastError();
        if (reason != std::errc::no_such_file_or_directory &&
            reason != std::errc::invalid_argument && reason != std::errc::filename_too_long)
            status.reason = reason;
        return status;
    }
    const bool link = (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 && IsLink(path);
    const bool folder = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    status.kind = link     ? FileStatus::Kind::Link
                  : folder ? FileStatus::Kind::Folder
                           : FileStatus::Kind::File;
    status.writable = folder || (attributes & FILE_ATTRIBUTE_READONLY) == 0;
    status.hidden = (attributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) != 0;
    return status;
}

// Where a link ends, links behind it included.
Path LinkTarget(const Path& link) {
    constexpr DWORD sharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const auto opened = IsLink(link) ? Hold(link, 0, sharing) : nullptr;
    if (!opened)
        return {};
    std::wstring name(32768, L'\0');
    name.resize(GetFinalPathNameByHandleW(opened.get(), name.data(),
                                          static_cast<DWORD>(name.size()), FILE_NAME_NORMALIZED));
    return name;
}

std::error_code EntriesOf(const Path& folder, std::vector<Path>& found) {
    WIN32_FIND_DATAW entry;
    HANDLE search = FindFirstFileW(SystemPath(folder / "*").c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE)
        return LastError();
    do {
        const std::wstring_view name = entry.cFileName;
        if (name != L"." && name != L".." && IsText(entry.cFileName))
            found.push_back(folder / name);
    } while (FindNextFileW(search, &entry));
    const bool whole = GetLastError() == ERROR_NO_MORE_FILES;
    const std::error_code error = whole ? std::error_code() : LastError();
    FindClose(search);
    return error;
}

bool SameFile(const Path& one, const Path& other) {
    const auto identity = [](const Path& path, BY_HANDLE_FILE_INFORMATION& information) {
        constexpr DWORD sharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
        const auto file = Hold(path, 0, sharing);
        return file && GetFileInformationByHandle(file.get(), &information) != 0;
    };
    BY_HANDLE_FILE_INFORMATION a{}, b{};
    return identity(one, a) && identity(other, b) &&
           a.dwVolumeSerialNumber == b.dwVolumeSerialNumber &&
           a.nFileIndexHigh == b.nFileIndexHigh && a.nFileIndexLow == b.nFileIndexLow;
}

} // namespace

FileLayer SystemFiles() {
    return {Read,      StatusOf,    LinkTarget,   EntriesOf, SameFile, CreateNew,
            Overwrite, Write,       Flush,        Close,     CopyMode, Rename,
            Remove,    FlushFolder, CreateFolder, Claim,     Lock};
}

Path RunningProgramFolder() {
    std::wstring name(32768, L'\0');
    name.resize(GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size())));
    return Path(name).parent_path();
}

} // namespace emporium
