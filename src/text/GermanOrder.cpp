#include "text/GermanOrder.h"

#include "text/Ansi.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>
#include <tuple>

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

// What the characters of a text count as, one after the other.
class Folded {
public:
    explicit Folded(std::string_view text) : rest_(text) {}

    bool AtEnd() const { return !second_ && rest_.empty(); }

    /// Gives 0 behind the last one.
    unsigned char Next() {
        Weight weight{second_};
        if (!second_ && !rest_.empty()) {
            weight = PrimaryWeights[static_cast<unsigned char>(rest_.front())];
            rest_.remove_prefix(1);
        }
        second_ = weight.second;
        return static_cast<unsigned char>(weight.first);
    }

private:
    std::string_view rest_;
    char second_ = 0; // of the character before
};

// A text of a list by the first letters behind what all of the list begin with. Most pairs differ
// in them, and numbers are sorted many times as fast as texts.
struct Entry {
    std::uint64_t head = 0;
    std::size_t index = 0;
};
using Entries = std::vector<Entry>;
using TextAt = std::function<std::string_view(std::size_t)>;

std::size_t SharedLength(std::size_t count, const TextAt& textAt) {
    std::string_view shared = count == 0 ? std::string_view() : textAt(0);
    for (std::size_t i = 1; i < count && !shared.empty(); ++i) {
        const std::string_view text = textAt(i);
        const auto end =
            std::mismatch(shared.begin(), shared.end(), text.begin(), text.end()).first;
        shared = shared.substr(0, static_cast<std::size_t>(end - shared.begin()));
    }
    return shared.size();
}

std::uint64_t Head(std::string_view text) {
    Folded folded(text);
    std::uint64_t head = 0;
    for (std::size_t i = 0; i < sizeof head; ++i)
        head = head << 8U | folded.Next();
    return head;
}

// Byte by byte, the last one first, each time without changing the order of equal ones.
void SortByHead(Entries& entries) {
    Entries sorted(entries.size());
    for (unsigned shift = 0; shift < 64; shift += 8) {
        std::array<std::size_t, 257> places{};
        for (const Entry& entry : entries)
            ++places[(entry.head >> shift & 255U) + 1];
        std::partial_sum(places.begin(), places.end(), places.begin());
        for (const Entry& entry : entries)
            sorted[places[entry.head >> shift & 255U]++] = entry;
        entries.swap(sorted);
    }
}

// Those with the same head.
void SortByText(Entries::iterator begin, Entries::iterator end, bool descending,
                const TextAt& textAt) {
    std::stable_sort(begin, end, [&](const Entry& left, const Entry& right) {
        const auto& [a, b] = descending ? std::tie(right, left) : std::tie(left, right);
        return GermanLess(textAt(a.index), textAt(b.index));
    });
}

} // namespace

bool GermanLess(std::string_view left, std::string_view right) {
    Folded a(left), b(right);
    while (!a.AtEnd() && !b.AtEnd()) {
        const auto x = a.Next(), y = b.Next();
        if (x != y)
            return x < y;
    }
    return a.AtEnd() && b.AtEnd() ? left < right : a.AtEnd();
}

std::vector<int> GermanOrderOf(std::size_t count, bool descending, const TextAt& textAt) {
    const std::size_t shared = SharedLength(count, textAt);
    Entries entries(count);
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint64_t head = Head(textAt(i).substr(shared));
        entries[i] = {descending ? ~head : head, i};
    }
    SortByHead(entries);
    for (auto begin = entries.begin(); begin != entries.end();) {
        const auto end = std::find_if(
            begin, entries.end(), [&](const Entry& entry) { return entry.head != begin->head; });
        if (end - begin > 1)
            SortByText(begin, end, descending, textAt);
        begin = end;
    }
    std::vector<int> order(count);
    std::transform(entries.begin(), entries.end(), order.begin(),
                   [](const Entry& entry) { return static_cast<int>(entry.index); });
    return order;
}

} // namespace emporium
