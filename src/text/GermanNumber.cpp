#include "text/GermanNumber.h"

#include "text/Ansi.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace emporium {

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// The text in the notation of std::from_chars, empty if it is no number.
std::string PlainNotation(std::string_view text) {
    std::string plain;
    bool digits = false;
    bool comma = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (IsDigit(c)) {
            plain += c;
            digits = true;
        } else if (i == 0 && (c == '+' || c == '-')) {
            if (c == '-')
                plain += c;
        } else if (c == ',' && !comma) {
            plain += '.';
            comma = true;
        } else if (c != '.' || comma) {
            return {};
        }
    }
    return digits ? plain : std::string();
}

} // namespace

std::optional<double> ReadGermanNumber(std::string_view text) {
    text = Trim(text);
    std::int32_t whole = 0; // like nearly all prices
    const auto [wholeEnd, none] = std::from_chars(text.data(), text.data() + text.size(), whole);
    if (none == std::errc() && wholeEnd == text.data() + text.size())
        return whole;
    const std::string plain = PlainNotation(text);
    if (plain.empty())
        return std::nullopt;
    double value = 0;
    const auto [end, error] = std::from_chars(plain.data(), plain.data() + plain.size(), value);
    if (error == std::errc::result_out_of_range) {
        const bool tiny = plain.find_first_of("123456789") > plain.find('.');
        const double infinity = std::numeric_limits<double>::infinity();
        return tiny ? 0.0 : plain.front() == '-' ? -infinity : infinity;
    }
    return value;
}

std::int16_t RoundToInt16(double number) {
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(
        std::clamp<double>(std::nearbyint(number), Limits::min(), Limits::max()));
}

} // namespace emporium
