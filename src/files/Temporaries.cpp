#include "files/Temporaries.h"

#include <algorithm>

namespace emporium {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view TemporaryEnding = ".orvan-neu";

std::error_code WriteAll(const FileLayer& files, FileLayer::Handle handle, std::string_view bytes) {
    while (!bytes.empty()) {
        std::size_t written = 0;
        if (const auto error = files.write(handle, bytes, written))
            return error;
        if (written == 0)
            return std::make_error_code(std::errc::io_error);
        bytes.remove_prefix(written);
    }
    return files.flush(handle);
}

std::error_code CreateTemporary(const FileLayer& files, const fs::path& target, fs::path& temporary,
                                FileLayer::Handle& handle) {
    constexpr int limit = 10'000;
    std::error_code error;
    for (int i = 0; i < limit; ++i) {
        temporary = target;
        temporary += std::string(TemporaryEnding) + std::to_string(i);
        error = files.createNew(temporary, handle);
        if (error != std::errc::file_exists)
            break;
    }
    return error;
}

bool IsTemporary(const fs::path& file) {
    const std::u8string ending = file.extension().u8string();
    return ending.size() > TemporaryEnding.size() &&
           std::equal(TemporaryEnding.begin(), TemporaryEnding.end(), ending.begin()) &&
           std::all_of(ending.begin() + static_cast<std::ptrdiff_t>(TemporaryEnding.size()),
                       ending.end(), [](char8_t c) { return c >= u8'0' && c <= u8'9'; });
}

} // namespace

bool IsTemporaryOf(const fs::path& target, const fs::path& temporary) {
    return IsTemporary(temporary) && temporary.stem() == target;
}

std::error_code WriteAndClose(const FileLayer& files, FileLayer::Handle handle,
                              std::string_view bytes) {
    const std::error_code error = WriteAll(files, handle, bytes);
    const std::error_code closing = files.close(handle);
    return error ? error : closing;
}

std::error_code WriteTemporary(const FileLayer& files, const fs::path& target,
                               std::string_view contents, bool replaces, fs::path& temporary) {
    FileLayer::Handle handle = 0;
    if (const auto error = CreateTemporary(files, target, temporary, handle))
        return error;
    std::error_code error = WriteAndClose(files, handle, contents);
    if (!error && replaces)
        error = files.copyMode(target, temporary);
    if (error)
        files.remove(temporary);
    return error;
}

std::error_code PutInPlace(const FileLayer& files, const fs::path& temporary,
                           const fs::path& target) {
    return temporary.empty() ? files.remove(target) : files.rename(temporary, target);
}

std::optional<FileFailure> RemoveStrays(const FileLayer& files, const fs::path& folder) {
    std::vector<fs::path> entries;
    if (const auto error = files.entries(folder, entries))
        return FileFailure{folder, error};
    for (const fs::path& file : entries)
        if (IsTemporary(file))
            if (const auto error = files.remove(file))
                return FileFailure{file, error};
    return std::nullopt;
}

std::optional<FileFailure> TryWriting(const FileLayer& files, const fs::path& folder) {
    fs::path probe;
    FileLayer::Handle handle = 0;
    const auto error = CreateTemporary(files, folder / "Schreibprobe", probe, handle);
    if (error == std::errc::no_such_file_or_directory)
        return std::nullopt;
    if (error)
        return FileFailure{folder, error};
    files.close(handle);
    files.remove(probe);
    return std::nullopt;
}

} // namespace emporium
