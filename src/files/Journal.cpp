#include "files/Journal.h"

#include "files/Temporaries.h"
#include "text/Ansi.h"
#include "text/LineReader.h"

#include <charconv>

namespace emporium {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view Heading = "orvan-journal 2";

std::string Utf8Name(const std::filesystem::path& file) {
    const std::u8string name = file.generic_u8string();
    return {name.begin(), name.end()};
}

std::filesystem::path FromUtf8Name(std::string_view name) {
    return {std::u8string(name.begin(), name.end())};
}

std::optional<std::uint64_t> ReadNumber(std::string_view text) {
    std::uint64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

std::uint64_t Checksum(std::string_view bytes) {
    constexpr std::uint64_t basis = 14695981039346656037U; // FNV-1a
    constexpr std::uint64_t prime = 1099511628211U;
    std::uint64_t sum = basis;
    for (const char byte : bytes)
        sum = (sum ^ static_cast<unsigned char>(byte)) * prime;
    return sum;
}

std::string ClosingLine(std::string_view before) {
    return std::to_string(Checksum(before)) + "\n";
}

// A number or "-" on each of two lines.
std::string FingerprintText(const std::optional<Fingerprint>& print) {
    return print ? std::to_string(print->length) + "\n" + std::to_string(print->checksum) + "\n"
                 : "-\n-\n";
}

// Nothing behind a "-"; false for lines that are neither that nor two numbers.
bool ReadFingerprint(LineReader& lines, std::optional<Fingerprint>& print) {
    std::string_view length, checksum;
    lines.Next(length);
    lines.Next(checksum);
    if (length == "-")
        return true;
    const auto first = ReadNumber(length);
    const auto second = ReadNumber(checksum);
    if (!first || !second)
        return false;
    print = Fingerprint{*first, *second};
    return true;
}

// A name that is no UTF-8 would end the program where a path is made of it.
bool IsPlainFileName(std::string_view name) {
    const std::u8string text(name.begin(), name.end());
    return !name.empty() && name != "." && name != ".." &&
           name.find_first_of("/\\:\0"sv) == name.npos && ToUtf8(FromUtf8(text)) == text;
}

bool ReadEntry(LineReader& lines, JournalEntry& entry) {
    std::string_view target, temporary;
    lines.Next(target);
    lines.Next(temporary);
    std::optional<Fingerprint> after;
    if (!ReadFingerprint(lines, entry.before) || !ReadFingerprint(lines, after) || !after ||
        !IsPlainFileName(target) || !(temporary.empty() || IsPlainFileName(temporary)))
        return false;
    entry.target = FromUtf8Name(target);
    entry.temporary = FromUtf8Name(temporary);
    entry.after = *after;
    return temporary.empty() || IsTemporaryOf(entry.target, entry.temporary);
}

} // namespace

Fingerprint FingerprintOf(std::string_view bytes) {
    return {bytes.size(), Checksum(bytes)};
}

std::string JournalText(const Journal& journal) {
    std::string text = std::string(Heading) + "\n";
    for (const JournalEntry& entry : journal)
        text += Utf8Name(entry.target) + "\n" + Utf8Name(entry.temporary) + "\n" +
                FingerprintText(entry.before) + FingerprintText(entry.after);
    return text + ClosingLine(text);
}

std::optional<Journal> ReadJournal(std::string_view text) {
    const auto lastLine = text.empty() ? text.npos : text.rfind('\n', text.size() - 2);
    if (lastLine == text.npos ||
        ClosingLine(text.substr(0, lastLine + 1)) != text.substr(lastLine + 1))
        return std::nullopt;
    LineReader lines(text.substr(0, lastLine + 1));
    std::string_view heading;
    lines.Next(heading);
    if (heading != Heading)
        return std::nullopt;
    Journal journal;
    while (!lines.AtEnd())
        if (!ReadEntry(lines, journal.emplace_back()))
            return std::nullopt;
    return journal;
}

} // namespace emporium
