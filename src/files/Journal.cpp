#include "files/Journal.h"

#include "text/LineReader.h"

#include <charconv>

namespace emporium {

namespace {

constexpr std::string_view Heading = "orvan-journal 1";

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

std::string ClosingLine(std::string_view before) {
    return std::to_string(Checksum(before)) + "\n";
}

} // namespace

std::uint64_t Checksum(std::string_view bytes) {
    constexpr std::uint64_t basis = 14695981039346656037U; // FNV-1a
    constexpr std::uint64_t prime = 1099511628211U;
    std::uint64_t sum = basis;
    for (const char byte : bytes)
        sum = (sum ^ static_cast<unsigned char>(byte)) * prime;
    return sum;
}

std::string JournalText(const Journal& journal) {
    std::string text = std::string(Heading) + "\n";
    for (const JournalEntry& entry : journal)
        text += Utf8Name(entry.temporary) + "\n" + Utf8Name(entry.target) + "\n" +
                std::to_string(entry.length) + "\n" + std::to_string(entry.checksum) + "\n";
    return text + ClosingLine(text);
}

std::optional<Journal> ReadJournal(std::string_view text) {
    const auto lastLine = text.empty() ? text.npos : text.rfind('\n', text.size() - 2);
    if (lastLine == text.npos ||
        ClosingLine(text.substr(0, lastLine + 1)) != text.substr(lastLine + 1))
        return std::nullopt;
    LineReader lines(text.substr(0, lastLine + 1));
    std::string_view line;
    if (!lines.Next(line) || line != Heading)
        return std::nullopt;
    Journal journal;
    while (!lines.AtEnd()) {
        std::string_view temporary, target, length, checksum;
        lines.Next(temporary);
        lines.Next(target);
        lines.Next(length);
        lines.Next(checksum);
        const auto lengthNumber = ReadNumber(length);
        const auto checksumNumber = ReadNumber(checksum);
        if (!lengthNumber || !checksumNumber)
            return std::nullopt;
        journal.push_back(
            {FromUtf8Name(temporary), FromUtf8Name(target), *lengthNumber, *checksumNumber});
    }
    return journal;
}

} // namespace emporium
