#include "text/GermanOrder.h"

#include "text/Ansi.h"

#include <algorithm>
#include <array>
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

std::string SortKey(std::string_view text) {
    std::string key;
    key.reserve(2 * text.size() + 1);
    for (const char c : text)
        key += PrimaryWeights[static_cast<unsigned char>(c)];
    key += '\0';
    return key.append(text);
}

} // namespace

bool GermanLess(std::string_view left, std::string_view right) {
    return SortKey(left) < SortKey(right);
}

std::vector<int> GermanOrderOf(std::size_t count, bool descending,
                               const std::function<std::string_view(std::size_t)>& textAt) {
    std::vector<std::string> keys(count);
    for (std::size_t i = 0; i < count; ++i)
        keys[i] = SortKey(textAt(i));
    const auto key = [&keys](int i) -> const std::string& {
        return keys[static_cast<std::size_t>(i)];
    };
    std::vector<int> order(count);
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(),
                     [&](int a, int b) { return descending ? key(b) < key(a) : key(a) < key(b); });
    return order;
}

} // namespace emporium
