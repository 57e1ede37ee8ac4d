#include "base/Subs.h"

#include "base/IniFile.h"
#include "files/Links.h"

#include <algorithm>
#include <vector>

namespace emporium {

namespace fs = std::filesystem;

namespace {

// A character of UTF-8 and what follows it.
std::u8string_view WithoutFirst(std::u8string_view text) {
    do
        text.remove_prefix(1);
    while (!text.empty() && (text.front() & 0xC0U) == 0x80U);
    return text;
}

// "*" stands for any text, "?" for one character. The patterns are short.
bool MatchesWildcards(std::u8string_view pattern, std::u8string_view name) {
    if (pattern.empty())
        return name.empty();
    const auto rest = pattern.substr(1);
    if (pattern.front() == u8'*')
        return MatchesWildcards(rest, name) ||
               (!name.empty() && MatchesWildcards(pattern, WithoutFirst(name)));
    if (pattern.front() == u8'?')
        return !name.empty() && MatchesWildcards(rest, WithoutFirst(name));
    return name.starts_with(pattern.front()) && MatchesWildcards(rest, name.substr(1));
}

bool IsNormalFile(const FileLayer& files, const fs::path& file) {
    const FileStatus status = StatusBehindLinks(files, file);
    return status.reason || (status.kind == FileStatus::Kind::File && !files.status(file).hidden);
}

} // namespace

std::string ReadIniValue(const FileLayer& files, const fs::path& file, std::string_view section,
                         std::string_view key) {
    return IniValue(files.read(file, LargestList).bytes, section, key);
}

bool FileExists(const FileLayer& files, const fs::path& path) {
    const std::u8string pattern = path.filename().u8string();
    if (pattern.find_first_of(u8"*?") == pattern.npos)
        return IsNormalFile(files, path);
    std::vector<fs::path> entries;
    files.entries(path.parent_path(), entries);
    return std::any_of(entries.begin(), entries.end(), [&](const fs::path& entry) {
        return MatchesWildcards(pattern, entry.filename().u8string()) && IsNormalFile(files, entry);
    });
}

} // namespace emporium
