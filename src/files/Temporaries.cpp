#include "files/Temporaries.h"

#include <vector>

namespace emporium {

namespace fs = std::filesystem;

namespace {

constexpr const char* TemporaryEnding = ".orvan-neu";

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
        temporary += TemporaryEnding + std::to_string(i);
        error = files.createNew(temporary, handle);
        if (error != std::errc::file_exists)
            break;
    }
    return error;
}

bool IsTemporary(const fs::path& file) {
    return file.extension().string().starts_with(TemporaryEnding);
}

// The temporary files in the folder; of another folder only those of the target of a link.
std::vector<fs::path> FindStrays(const fs::path& folder) {
    std::vector<fs::path> strays;
    for (const fs::path& file : EntriesOf(folder)) {
        if (IsTemporary(file))
            strays.push_back(file);
        std::error_code error;
        const fs::path target = FollowLinks(file, error);
        if (error || target == file)
            continue;
        for (const fs::path& beside : EntriesOf(target.parent_path()))
            if (IsTemporary(beside) && beside.stem() == target.filename())
                strays.push_back(beside);
    }
    return strays;
}

} // namespace

fs::path FollowLinks(fs::path file, std::error_code& error) {
    constexpr int limit = 40;
    for (int i = 0; i < limit; ++i) {
        const fs::file_status status = fs::symlink_status(file, error);
        if (fs::status_known(status))
            error.clear(); // a file that is not there is none of the failures
        if (error || !fs::is_symlink(status))
            return file;
        const fs::path target = fs::read_symlink(file, error);
        if (error)
            return file;
        file = file.parent_path() / target;
    }
    error = std::make_error_code(std::errc::too_many_symbolic_link_levels);
    return file;
}

std::error_code WriteTemporary(const FileLayer& files, const fs::path& target,
                               std::string_view contents, bool replaces, fs::path& temporary) {
    FileLayer::Handle handle = 0;
    if (const auto error = CreateTemporary(files, target, temporary, handle))
        return error;
    std::error_code error = WriteAll(files, handle, contents);
    const std::error_code closing = files.close(handle);
    if (!error)
        error = closing;
    if (!error && replaces)
        error = files.copyMode(target, temporary);
    if (error)
        files.remove(temporary);
    return error;
}

std::optional<FileFailure> RemoveStrays(const FileLayer& files, const fs::path& folder) {
    for (const fs::path& stray : FindStrays(folder))
        if (const auto error = files.remove(stray))
            return FileFailure{stray, error};
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
