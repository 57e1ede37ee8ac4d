#include "base/Subs.h"

#include "base/IniFile.h"
#include "files/Links.h"

#include <algorithm>
#include <vector>

namespace emporium {

namespace fs = std::filesystem;

namespace {

// "*" stands for any text, "?" for one character. Compared as code units, which is exact for all
// but a "?" against a character of several bytes; that one is stepped over as a whole.
bool MatchesWildcards(std::u8string_view pattern, std::u8string_view name) {
    std::size_t p = 0;
    std::size_t n = 0;
    std::size_t star = pattern.npos;
    std::size_t starName = 0;
    const auto next = [&name](std::size_t i) {
        do {
            ++i;
        } while (i < name.size() && (name[i] & 0xC0U) == 0x80U);
        return i;
    };
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == u8'*') {
            star = p++;
            starName = n;
        } else if (p < pattern.size() && pattern[p] == u8'?') {
            ++p;
            n = next(n);
        } else if (p < pattern.size() && pattern[p] == name[n]) {
            ++p;
            ++n;
        } else if (star != pattern.npos) {
            p = star + 1;
            n = starName = next(starName);
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == u8'*')
        ++p;
    return p == pattern.size();
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
    const std::vector<fs::path> entries = files.entries(path.parent_path());
    return std::any_of(entries.begin(), entries.end(), [&](const fs::path& entry) {
        return MatchesWildcards(pattern, entry.filename().u8string()) && IsNormalFile(files, entry);
    });
}

} // namespace emporium
