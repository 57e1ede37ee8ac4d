#include "text/Ansi.h"

namespace emporium {

namespace {

void AppendUtf8(std::u8string& out, char32_t c) {
    const auto put = [&out](char32_t byte) { out.push_back(static_cast<char8_t>(byte)); };
    if (c < 0x80) {
        put(c);
    } else if (c < 0x800) {
        put(0xC0U | (c >> 6U));
        put(0x80U | (c & 0x3FU));
    } else {
        put(0xE0U | (c >> 12U));
        put(0x80U | ((c >> 6U) & 0x3FU));
        put(0x80U | (c & 0x3FU));
    }
}

char FoldByte(char byte) {
    const auto value = static_cast<unsigned char>(byte);
    const bool capital =
        (value >= 'A' && value <= 'Z') || (value >= 0xC0 && value <= 0xDE && value != 0xD7);
    if (capital)
        return static_cast<char>(value + 0x20U);
    switch (value) {
    case 0x8A: // Š
    case 0x8C: // Œ
    case 0x8E: // Ž
        return static_cast<char>(value + 0x10U);
    case 0x9F: // Ÿ
        return static_cast<char>(0xFF);
    default:
        return byte;
    }
}

} // namespace

std::u8string ToUtf8(std::string_view text) {
    std::u8string out;
    for (const char byte : text)
        AppendUtf8(out, ansi::Decode(byte));
    return out;
}

std::string FromUtf8(std::u8string_view text) {
    std::string out;
    for (std::size_t i = 0; i < text.size();) {
        const unsigned lead = text[i];
        const std::size_t size = lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        char32_t character = size == 1 ? lead : lead & (0xFFU >> (size + 1));
        for (std::size_t k = 1; k < size && i + k < text.size(); ++k)
            character = (character << 6U) | (text[i + k] & 0x3FU);
        out.push_back(ansi::Encode(character).value_or('?'));
        i += size;
    }
    return out;
}

std::filesystem::path ToPath(std::string_view text) {
    return {ToUtf8(text)};
}

std::string FromPath(const std::filesystem::path& path) {
    return FromUtf8(path.u8string());
}

std::string FoldCase(std::string_view text) {
    std::string folded(text);
    for (char& byte : folded)
        byte = FoldByte(byte);
    return folded;
}

std::string_view Trim(std::string_view text) {
    constexpr std::string_view blanks = " \t";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string_view WithoutLast(std::string_view text) {
    return text.substr(0, text.empty() ? 0 : text.size() - 1);
}

} // namespace emporium
