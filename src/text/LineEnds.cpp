#include "text/LineEnds.h"

namespace emporium {

std::string_view LineEndOf(std::string_view text) {
    const auto end = text.find('\n');
    return end == text.npos || text.substr(0, end).ends_with('\r') ? "\r\n" : "\n";
}

void EndLastLine(std::string& text, std::string_view lineEnd) {
    if (!text.empty() && text.back() != '\n')
        text.append(lineEnd);
}

} // namespace emporium
