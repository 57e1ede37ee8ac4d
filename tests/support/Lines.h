// Texts of files.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace emporium::test {

/// Lines as a text with CR LF behind each.
inline std::string Lines(std::initializer_list<std::string_view> lines) {
    std::string text;
    for (const std::string_view line : lines)
        text.append(line).append("\r\n");
    return text;
}

} // namespace emporium::test
