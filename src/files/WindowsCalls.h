// What every call of the Windows file system needs: long paths, retries and errors in the
// standard's words.
#pragma once

#include <filesystem>
#include <string>
#include <system_error>
#include <windows.h>

namespace emporium::windows {

/// The error as one that the program has words for.
std::error_code ToError(DWORD error);
std::error_code LastError();

/// True for the failure of a call that may go well a moment later: virus scanners and sync clients
/// hold a file for moments.
bool IsPassing(DWORD error);
inline constexpr int Attempts = 10;
inline constexpr DWORD PauseMilliseconds = 30;

/// Calls until it returns true, fails for good or has failed ten times.
template <typename Call> std::error_code WithRetries(Call call) {
    for (int attempt = 1;; ++attempt) {
        if (call())
            return {};
        const DWORD error = GetLastError();
        if (!IsPassing(error) || attempt == Attempts)
            return ToError(error);
        Sleep(PauseMilliseconds);
    }
}

/// The path in the form that the system takes at any length.
std::wstring SystemPath(const std::filesystem::path& path);

/// The attributes, or INVALID_FILE_ATTRIBUTES.
DWORD AttributesOf(const std::filesystem::path& path);

/// True for what leads elsewhere; a placeholder of a cloud folder is a file.
bool IsLink(const std::filesystem::path& path);

/// Opens a file or a folder, with retries.
std::error_code Open(const std::filesystem::path& path, DWORD access, DWORD sharing,
                     DWORD disposition, HANDLE& handle);

} // namespace emporium::windows
