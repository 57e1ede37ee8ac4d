// Text of the data files: Windows-1252, one byte a character. The core keeps text as these bytes in
// std::string, so that the last character is the last byte and a file goes in and out byte for
// byte. Here are literals with umlauts, the two conversions that the window and the file system
// need, and folding of case. Alphabetical order is GermanOrder's.
#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace emporium {

namespace ansi {

/// The characters of the bytes 0x80 to 0x9F. The five bytes that the code page leaves undefined
/// stand for the control characters of the same number, as Windows reads them.
inline constexpr std::array<char32_t, 32> HighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// The character that the byte stands for.
constexpr char32_t Decode(char byte) {
    const auto value = static_cast<unsigned char>(byte);
    return value >= 0x80 && value < 0xA0 ? HighControls[value - 0x80U] : value;
}

/// The byte of the character, nothing if the code page lacks it.
constexpr std::optional<char> Encode(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character < 0x100))
        return static_cast<char>(character);
    for (std::size_t i = 0; i < HighControls.size(); ++i)
        if (HighControls[i] == character)
            return static_cast<char>(0x80U + i);
    return std::nullopt;
}

template <std::size_t N> struct Literal {
    std::array<char, N> bytes{};
    std::size_t length = 0;

    // Throwing makes a literal that the code page lacks a compile error.
    consteval Literal(const char (&utf8)[N]) { // NOLINT(google-explicit-constructor)
        for (std::size_t i = 0; i + 1 < N;) {
            const auto lead = static_cast<unsigned char>(utf8[i]);
            const std::size_t size = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
            char32_t character = size == 1 ? lead : lead & (0xFFU >> (size + 1));
            for (std::size_t k = 1; k < size; ++k)
                character = (character << 6U) | (static_cast<unsigned char>(utf8[i + k]) & 0x3FU);
            const auto byte = Encode(character);
            if (!byte)
                throw "the character is not in Windows-1252";
            bytes[length++] = *byte;
            i += size;
        }
    }
};

} // namespace ansi

/// A literal written in UTF-8 as the bytes of the code page, at compile time.
template <ansi::Literal L> constexpr std::string_view operator""_ansi() {
    return {L.bytes.data(), L.length};
}

/// The text in UTF-8.
std::u8string ToUtf8(std::string_view text);

/// The UTF-8 text as bytes of the code page; what the code page lacks becomes "?".
std::string FromUtf8(std::u8string_view text);

/// The text as part of a path: UTF-8 on Linux, wide characters on Windows.
std::filesystem::path ToPath(std::string_view text);

/// The path for a message to the user.
std::string FromPath(const std::filesystem::path& path);

/// The text in small letters, umlauts and accented letters included: two texts that Windows counts
/// as equal without regard to case fold to the same text.
std::string FoldCase(std::string_view text);

/// Without blanks and tabs at either end.
std::string_view Trim(std::string_view text);

/// Without the last character; an empty text stays empty.
std::string_view WithoutLast(std::string_view text);

} // namespace emporium
