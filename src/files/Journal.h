// The text of the journal that binds the changes of several files together (see FileWriting). It
// names files of its own folder and nothing else, so that a folder from foreign hands can't reach
// out of itself. The last line holds a check sum over all before it, so a torn journal is never
// taken for a whole one.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace emporium {

inline constexpr const char* JournalName = "Schreibvorgang.orvan-journal";

/// What a file holds, without its bytes.
struct Fingerprint {
    std::uint64_t length = 0;
    std::uint64_t checksum = 0;

    bool operator==(const Fingerprint&) const = default;
};

Fingerprint FingerprintOf(std::string_view bytes);

/// One change of a file.
struct JournalEntry {
    std::filesystem::path target;      // a plain name
    std::filesystem::path temporary;   // a plain name; empty: the target is removed
    std::optional<Fingerprint> before; // nothing: there was no such file
    Fingerprint after;                 // of the temporary
};

using Journal = std::vector<JournalEntry>;

std::string JournalText(const Journal& journal);

/// Nothing if the text is not a whole journal, or names anything but files of one folder and the
/// temporaries beside them.
std::optional<Journal> ReadJournal(std::string_view text);

} // namespace emporium
