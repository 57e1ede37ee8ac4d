#include "base/Subs.h"

#include "files/Links.h"
#include "text/Ansi.h"
#include "text/LineReader.h"

#include <algorithm>
#include <bit>
#include <chrono>
#include <cmath>
#include <unordered_set>

namespace emporium {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t MaxValueLength = 254;

std::string LookupName(std::string_view section, std::string_view key) {
    return FoldCase(section) + '\0' + FoldCase(key);
}

std::string_view WithoutQuotes(std::string_view value) {
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

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

// Mixes all bits of the state into all bits of the result (the finalizer of MurmurHash3).
std::uint64_t Mix(std::uint64_t x) {
    x = (x ^ (x >> 33U)) * 0xff51afd7ed558ccdU;
    x = (x ^ (x >> 33U)) * 0xc4ceb9fe1a85ec53U;
    return x ^ (x >> 33U);
}

} // namespace

IniFile::IniFile(std::string_view text) {
    LineReader lines(text);
    std::unordered_set<std::string> seen;
    std::string section; // as a lookup name begins
    bool reachable = false;
    for (std::string_view line; lines.Next(line);) {
        line = Trim(line);
        if (line.empty() || line.front() == ';')
            continue;
        if (line.front() == '[') {
            const auto end = line.find(']');
            if (end == line.npos)
                continue;
            section = LookupName(Trim(line.substr(1, end - 1)), "");
            reachable = seen.insert(section).second;
            continue;
        }
        const auto equals = line.find('=');
        if (!reachable || equals == line.npos)
            continue;
        const auto value = WithoutQuotes(Trim(line.substr(equals + 1))).substr(0, MaxValueLength);
        values_.emplace(section + FoldCase(Trim(line.substr(0, equals))), value);
    }
}

std::string IniFile::Value(std::string_view section, std::string_view key) const {
    const auto found = values_.find(LookupName(Trim(section), Trim(key)));
    return found == values_.end() ? std::string() : found->second;
}

std::string ReadIniValue(const FileLayer& files, const fs::path& file, std::string_view section,
                         std::string_view key) {
    return IniFile(files.read(file).bytes).Value(section, key);
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

float SecondsSinceMidnight() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration<float>(now % std::chrono::days(1)).count();
}

std::int32_t Dice::RollDice(std::int32_t n) {
    constexpr std::uint64_t step = 0x9e3779b97f4a7c15U;
    state_ = Mix(state_ + step) ^ std::bit_cast<std::uint32_t>(clock_());
    const auto u = static_cast<float>(Mix(state_) >> 40U) * 0x1p-24F; // 24 bits: exact, below 1
    if (n < 2)
        return 1;
    return static_cast<std::int32_t>(std::floor(static_cast<double>(u) * n + 1.0));
}

} // namespace emporium
