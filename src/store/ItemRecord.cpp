#include "store/ItemRecord.h"

#include "text/Ansi.h"

#include <algorithm>

namespace emporium {

RecordView ViewOf(const ItemRecord& record) {
    RecordView view;
    std::copy(record.begin(), record.end(), view.begin());
    return view;
}

ItemRecord CopyOf(const RecordView& record) {
    ItemRecord copy;
    std::copy(record.begin(), record.end(), copy.begin());
    return copy;
}

std::string_view ItemName(const RecordView& record) {
    return WithoutLast(record[NameField]);
}

bool HasMark(const RecordView& record, ItemField field) {
    const std::string_view line = record[field];
    const bool isDigit = !line.empty() && line.back() >= '0' && line.back() <= '9';
    return !line.empty() && isDigit == (field == NameField);
}

} // namespace emporium
