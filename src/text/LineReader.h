// The lines of a text, one after the other. CR LF and a lone LF end a line alike; a last line
// without an end counts, and the end of the last line begins no further one.
#pragma once

#include <string_view>

namespace emporium {

class LineReader {
public:
    /// The text must outlive the reader and the lines that it gave.
    explicit LineReader(std::string_view text) : rest_(text) {}

    bool AtEnd() const { return rest_.empty(); }

    /// The next line without its end. False, with an empty line, behind the last one.
    bool Next(std::string_view& line) {
        if (rest_.empty()) {
            line = {};
            return false;
        }
        const auto end = rest_.find('\n');
        line = rest_.substr(0, end);
        rest_.remove_prefix(end == rest_.npos ? rest_.size() : end + 1);
        if (end != rest_.npos && !line.empty() && line.back() == '\r')
            line.remove_suffix(1);
        return true;
    }

private:
    std::string_view rest_;
};

} // namespace emporium
