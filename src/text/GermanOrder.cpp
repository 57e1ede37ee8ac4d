#include "text/GermanOrder.h"

#include "text/Ansi.h"

#include <algorithm>
#include <array>
#include <cstdint>
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

// A text of a list. Most pairs differ in the first letters behind what all of the list begin with,
// and numbers are compared several times as fast as texts.
struct Entry {
    std::string_view text;
    std::uint64_t head = 0;
    int index = 0;
};

std::uint64_t Head(std::string_view text) {
    Folded folded(text);
    std::uint64_t head = 0;
    for (std::size_t i = 0; i < sizeof head; ++i)
        head = head << 8U | folded.Next();
    return head;
}

std::size_t SharedLength(const std::vector<Entry>& entries) {
    std::string_view shared = entries.empty() ? std::string_view() : entries.front().text;
    for (const Entry& entry : entries) {
        const auto end =
            std::mismatch(shared.begin(), shared.end(), entry.text.begin(), entry.text.end()).first;
        shared = shared.substr(0, static_cast<std::size_t>(end - shared.begin()));
    }
    return shared.size();
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

std::vector<int> GermanOrderOf(std::size_t count, bool descending,
                               const std::function<std::string_view(std::size_t)>& textAt) {
    std::vector<Entry> entries(count);
    for (std::size_t i = 0; i < count; ++i)
        entries[i] = {textAt(i), 0, static_cast<int>(i)};
    const std::size_t shared = SharedLength(entries);
    for (Entry& entry : entries)
        entry.head = Head(entry.text.substr(shared));
    std::stable_sort(entries.begin(), entries.end(), [&](const Entry& left, const Entry& right) {
        const auto& [a, b] = descending ? std::tie(right, left) : std::tie(left, right);
        return a.head != b.head ? a.head < b.head : GermanLess(a.text, b.text);
    });
    std::vector<int> order(count);
    std::transform(entries.begin(), entries.end(), order.begin(), std::mem_fn(&Entry::index));
    return order;
}

} // namespace emporium
