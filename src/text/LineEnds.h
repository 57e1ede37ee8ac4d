// How the lines of a text end: new lines end as those do that are there.
#pragma once

#include <string>
#include <string_view>

namespace emporium {

/// CR LF, or what ends the text's first line if that is a lone LF.
std::string_view LineEndOf(std::string_view text);

/// Ends the last line of a text whose end lacks it.
void EndLastLine(std::string& text, std::string_view lineEnd);

} // namespace emporium
