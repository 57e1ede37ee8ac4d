// The text of the journal that binds the changes of several files together (see FileWriting). Its
// last line holds a check sum over all before it, so a torn journal is never taken for a whole one.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace emporium {

inline constexpr const char* JournalName = "Schreibvorgang.orvan-journal";

/// One change; the names are relative to the journal's folder, or whole paths outside it.
struct JournalEntry {
    std::filesystem::path temporary; // empty: the target is removed
    std::filesystem::path target;
    std::uint64_t length = 0;   // of the temporary
    std::uint64_t checksum = 0; // of the temporary
};

using Journal = std::vector<JournalEntry>;

std::uint64_t Checksum(std::string_view bytes);

std::string JournalText(const Journal& journal);

/// Nothing if the text is not a whole journal.
std::optional<Journal> ReadJournal(std::string_view text);

} // namespace emporium
