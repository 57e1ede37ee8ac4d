#include "files/WindowsCalls.h"

namespace emporium::windows {

using Path = std::filesystem::path;

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

bool IsPassing(DWORD error) {
    return error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED ||
           error == ERROR_LOCK_VIOLATION;
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

// Folders can be opened, too. A link is in a new file's way, even if it leads to none.
std::error_code Open(const Path& path, DWORD access, DWORD sharing, DWORD disposition,
                     HANDLE& handle) {
    const DWORD links = disposition == CREATE_NEW ? FILE_FLAG_OPEN_REPARSE_POINT : 0;
    return WithRetries([&] {
        handle = CreateFileW(SystemPath(path).c_str(), access, sharing, nullptr, disposition,
                             FILE_ATTRIBUTE_NORMAL | FILE_FLAG_BACKUP_SEMANTICS | links, nullptr);
        return handle != INVALID_HANDLE_VALUE;
    });
}

bool IsLink(const Path& path) {
    WIN32_FIND_DATAW found;
    HANDLE search = FindFirstFileW(SystemPath(path).c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return false;
    FindClose(search);
    return found.dwReserved0 == IO_REPARSE_TAG_SYMLINK ||
           found.dwReserved0 == IO_REPARSE_TAG_MOUNT_POINT;
}

} // namespace emporium::windows
