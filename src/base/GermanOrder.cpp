#include "base/GermanOrder.h"

#include "base/Ansi.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>

namespace emporium {

namespace {

using Weights = std::array<std::string_view, 256>;

struct Equivalents {
    std::string_view characters;
    std::string_view base;
};

constexpr std::array<Equivalents, 14> Letters = {{
    {"ÀÁÂÃÄÅàáâãäå"_ansi, "a"},
    {"Çç"_ansi, "c"},
    {"Ðð"_ansi, "d"},
    {"ÈÉÊËèéêë"_ansi, "e"},
    {"ÌÍÎÏìíîï"_ansi, "i"},
    {"Ññ"_ansi, "n"},
    {"ÒÓÔÕÖØòóôõöø"_ansi, "o"},
    {"Šš"_ansi, "s"},
    {"ÙÚÛÜùúûü"_ansi, "u"},
    {"ÝýÿŸ"_ansi, "y"},
    {"Žž"_ansi, "z"},
    {"ß"_ansi, "ss"},
    {"Ææ"_ansi, "ae"},
    {"Œœ"_ansi, "oe"},
}};

constexpr auto AllBytes = [] {
    std::array<char, 256> bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>(i >= 'A' && i <= 'Z' ? i + 0x20U : i);
    return bytes;
}();

constexpr Weights PrimaryWeights = [] {
    Weights weights{};
    for (std::size_t i = 0; i < weights.size(); ++i)
        weights[i] = std::string_view(&AllBytes[i], 1);
    for (const auto& letter : Letters)
        for (const char c : letter.characters)
            weights[static_cast<unsigned char>(c)] = letter.base;
    return weights;
}();

// The first eight bytes of a key as a number in the same order: most comparisons end there.
std::uint64_t Prefix(std::string_view key) {
    std::uint64_t prefix = 0;
    for (std::size_t i = 0; i < 8; ++i)
        prefix = (prefix << 8U) | (i < key.size() ? static_cast<unsigned char>(key[i]) : 0U);
    return prefix;
}

struct Entry {
    std::uint64_t prefix;
    int index;
};

} // namespace

std::string GermanSortKey(std::string_view text) {
    std::string key;
    key.reserve(2 * text.size() + 2);
    for (const char c : text)
        key += PrimaryWeights[static_cast<unsigned char>(c)];
    key += '\0';
    key += text;
    return key;
}

bool GermanLess(std::string_view left, std::string_view right) {
    return GermanSortKey(left) < GermanSortKey(right);
}

std::vector<int> GermanOrderOf(std::size_t count, bool descending,
                               const std::function<std::string_view(std::size_t)>& textAt) {
    std::vector<std::string> keys(count);
    std::vector<Entry> entries(count);
    for (std::size_t i = 0; i < count; ++i) {
        keys[i] = GermanSortKey(textAt(i));
        entries[i] = {Prefix(keys[i]), static_cast<int>(i)};
    }
    const auto less = [&keys](const Entry& a, const Entry& b) {
        if (a.prefix != b.prefix)
            return a.prefix < b.prefix;
        return keys[static_cast<std::size_t>(a.index)] < keys[static_cast<std::size_t>(b.index)];
    };
    if (descending)
        std::stable_sort(entries.begin(), entries.end(),
                         [&less](const Entry& a, const Entry& b) { return less(b, a); });
    else
        std::stable_sort(entries.begin(), entries.end(), less);

    std::vector<int> order(count);
    std::transform(entries.begin(), entries.end(), order.begin(),
                   [](const Entry& entry) { return entry.index; });
    return order;
}

} // namespace emporium
