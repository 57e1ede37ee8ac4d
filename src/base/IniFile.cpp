#include "base/IniFile.h"

#include "text/Ansi.h"
#include "text/LineReader.h"

namespace emporium {

namespace {

constexpr std::size_t MaxValueLength = 254;

std::string_view WithoutQuotes(std::string_view value) {
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

bool FoldsTo(std::string_view text, std::string_view folded) {
    return text.size() == folded.size() && FoldCase(text) == folded;
}

struct Entry {
    std::string_view key, value;
};

// The entries of the first section of a name, one after the other.
class SectionReader {
public:
    SectionReader(std::string_view text, std::string_view section) : lines_(text) {
        const std::string folded = FoldCase(Trim(section));
        for (std::string_view line, name; !inside_ && lines_.Next(line);)
            inside_ = IsHead(Trim(line), name) && FoldsTo(name, folded);
    }

    bool Next(Entry& entry) {
        for (std::string_view line, name; inside_ && lines_.Next(line);) {
            line = Trim(line);
            if (line.empty() || line.front() == ';')
                continue;
            if (line.front() == '[') {
                inside_ = !IsHead(line, name);
                continue;
            }
            const auto equals = line.find('=');
            if (equals == line.npos)
                continue;
            entry = {Trim(line.substr(0, equals)),
                     WithoutQuotes(Trim(line.substr(equals + 1))).substr(0, MaxValueLength)};
            return true;
        }
        return false;
    }

private:
    static bool IsHead(std::string_view line, std::string_view& name) {
        const auto end = line.find(']');
        if (!line.starts_with('[') || end == line.npos)
            return false;
        name = Trim(line.substr(1, end - 1));
        return true;
    }

    LineReader lines_;
    bool inside_ = false;
};

} // namespace

std::string IniValue(std::string_view text, std::string_view section, std::string_view key) {
    const std::string folded = FoldCase(Trim(key));
    SectionReader reader(text, section);
    for (Entry entry; reader.Next(entry);)
        if (FoldsTo(entry.key, folded))
            return std::string(entry.value);
    return {};
}

IniSection::IniSection(std::string_view text, std::string_view section) {
    SectionReader reader(text, section);
    for (Entry entry; reader.Next(entry);)
        values_.emplace(FoldCase(entry.key), entry.value);
}

std::string IniSection::Value(std::string_view key) const {
    const auto found = values_.find(FoldCase(Trim(key)));
    return found == values_.end() ? std::string() : found->second;
}

} // namespace emporium
