#include "text/GermanOrder.h"

#include "text/Ansi.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace emporium {

namespace {

// What a character counts as: one letter or two.
struct Weight {
    char first = 0;
    char second = 0;
};
using Weights = std::array<Weight, 256>;

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

constexpr Weights PrimaryWeights = [] {
    Weights weights{};
    for (std::size_t i = 0; i < weights.size(); ++i)
        weights[i].first = static_cast<char>(i >= 'A' && i <= 'Z' ? i + 0x20U : i);
    for (const auto& letter : Letters)
        for (const char c : letter.characters)
            weights[static_cast<unsigned char>(c)] = {
                letter.base[0], letter.base.size() > 1 ? letter.base[1] : '\0'};
    return weights;
}();

// Bytes in whose order the text stands.
void AppendSortKey(std::string& keys, std::string_view text) {
    const std::size_t begin = keys.size();
    keys.resize(begin + 3 * text.size() + 1);
    char* end = keys.data() + begin;
    for (const char c : text) {
        const auto [first, second] = PrimaryWeights[static_cast<unsigned char>(c)];
        *end++ = first;
        if (second)
            *end++ = second;
    }
    *end++ = '\0';
    end = std::copy(text.begin(), text.end(), end);
    keys.resize(static_cast<std::size_t>(end - keys.data()));
}

} // namespace

bool GermanLess(std::string_view left, std::string_view right) {
    std::string a, b;
    AppendSortKey(a, left);
    AppendSortKey(b, right);
    return a < b;
}

std::vector<int> GermanOrderOf(std::size_t count, bool descending,
                               const std::function<std::string_view(std::size_t)>& textAt) {
    std::string keys; // all in one piece, so that they lie close together
    std::vector<std::size_t> bounds(count + 1);
    for (std::size_t i = 0; i < count; ++i) {
        AppendSortKey(keys, textAt(i));
        bounds[i + 1] = keys.size();
    }
    const auto key = [&](int i) {
        const auto row = static_cast<std::size_t>(i);
        return std::string_view(keys.data() + bounds[row], bounds[row + 1] - bounds[row]);
    };
    std::vector<int> order(count);
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(),
                     [&](int a, int b) { return descending ? key(b) < key(a) : key(a) < key(b); });
    return order;
}

} // namespace emporium
