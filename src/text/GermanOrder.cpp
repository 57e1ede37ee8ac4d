#include "text/GermanOrder.h"

#include "text/Ansi.h"

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

void AppendSortKey(std::string& key, std::string_view text) {
    for (const char c : text)
        key += PrimaryWeights[static_cast<unsigned char>(c)];
    key += '\0';
    key += text;
}

// The keys of many texts, one behind the other in a single string.
class SortKeys {
public:
    SortKeys(std::size_t count, const std::function<std::string_view(std::size_t)>& textAt) {
        ends_.reserve(count + 1);
        ends_.push_back(0);
        for (std::size_t i = 0; i < count; ++i) {
            AppendSortKey(bytes_, textAt(i));
            ends_.push_back(bytes_.size());
        }
    }

    std::string_view operator[](std::size_t i) const {
        return std::string_view(bytes_).substr(ends_[i], ends_[i + 1] - ends_[i]);
    }

    std::size_t Count() const { return ends_.size() - 1; }

    /// How many bytes all keys begin with alike.
    std::size_t SharedLength() const {
        std::size_t shared = Count() > 0 ? (*this)[0].size() : 0;
        for (std::size_t i = 1; i < Count(); ++i) {
            const auto [mine, first] =
                std::mismatch((*this)[i].begin(), (*this)[i].end(), bytes_.begin(),
                              bytes_.begin() + Offset(shared));
            shared = static_cast<std::size_t>(first - bytes_.begin());
        }
        return shared;
    }

private:
    static std::ptrdiff_t Offset(std::size_t size) { return static_cast<std::ptrdiff_t>(size); }

    std::string bytes_;
    std::vector<std::size_t> ends_;
};

// The eight bytes of a key behind what all keys share, as a number in the same order: most
// comparisons end there.
std::uint64_t Prefix(std::string_view key, std::size_t shared) {
    std::uint64_t prefix = 0;
    for (std::size_t i = shared; i < shared + 8; ++i)
        prefix = (prefix << 8U) | (i < key.size() ? static_cast<unsigned char>(key[i]) : 0U);
    return prefix;
}

struct Entry {
    std::uint64_t prefix;
    int index;
};

std::string SortKey(std::string_view text) {
    std::string key;
    AppendSortKey(key, text);
    return key;
}

} // namespace

bool GermanLess(std::string_view left, std::string_view right) {
    return SortKey(left) < SortKey(right);
}

std::vector<int> GermanOrderOf(std::size_t count, bool descending,
                               const std::function<std::string_view(std::size_t)>& textAt) {
    const SortKeys keys(count, textAt);
    const std::size_t shared = keys.SharedLength();
    std::vector<Entry> entries(count);
    for (std::size_t i = 0; i < count; ++i)
        entries[i] = {Prefix(keys[i], shared), static_cast<int>(i)};
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
