#include "store/RecordReader.h"

#include <algorithm>

namespace emporium {

bool RecordReader::Next(RecordView& record) {
    for (auto line = record.begin(); line != record.end(); ++line)
        if (!lines_.Next(*line)) {
            cutOff_ = std::any_of(record.begin(), line,
                                  [](std::string_view field) { return !field.empty(); });
            return false;
        }
    return true;
}

} // namespace emporium
