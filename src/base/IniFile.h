// Settings files: section heads in square brackets, lines of the form key=value.
//
// Sections and keys are found without regard to case, blanks around them and around values are
// dropped, and so is one matching pair of quotes around a value. A line that begins with ";" is a
// comment. Of two equal keys or sections the first counts. A value has at most 254 characters.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

namespace emporium {

/// One value of the file's text, empty if there is no such section or key. Reads no further than
/// to the key.
std::string IniValue(std::string_view text, std::string_view section, std::string_view key);

/// All values of one section, for whoever asks for many.
class IniSection {
public:
    IniSection(std::string_view text, std::string_view section);

    /// The value, empty if the section has no such key.
    std::string Value(std::string_view key) const;

private:
    std::unordered_map<std::string, std::string> values_; // by folded key
};

} // namespace emporium
