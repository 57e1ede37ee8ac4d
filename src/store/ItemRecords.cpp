#include "store/ItemRecords.h"

#include "text/Ansi.h"
#include "text/LineEnds.h"

#include <algorithm>
#include <utility>

namespace emporium {

namespace {

std::string RecordText(const RecordView& record, std::string_view lineEnd) {
    std::string text;
    for (const std::string_view field : record)
        text.append(field).append(lineEnd);
    return text;
}

// The bytes up to the end of the last whole record; empty lines behind it hold nothing.
std::string_view WholeRecords(std::string_view bytes) {
    RecordReader reader(bytes);
    std::size_t end = 0;
    for (RecordView record; reader.Next(record);) {
        const std::string_view last = record.back();
        const auto lastEnd = static_cast<std::size_t>(last.data() + last.size() - bytes.data());
        end = std::min(bytes.find('\n', lastEnd), bytes.size()) + 1;
    }
    return bytes.substr(0, end);
}

// The bytes before the record, and those behind the end of its last line.
std::pair<std::string_view, std::string_view> AroundRecord(std::string_view bytes,
                                                           const RecordView& place) {
    const std::string_view last = place.back();
    const auto begin = static_cast<std::size_t>(place.front().data() - bytes.data());
    const auto lastEnd = static_cast<std::size_t>(last.data() + last.size() - bytes.data());
    const auto end = bytes.find('\n', lastEnd);
    return {bytes.substr(0, begin), end == bytes.npos ? "" : bytes.substr(end + 1)};
}

} // namespace

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

bool RecordReader::Next(RecordView& record) {
    for (std::size_t field = 0; field < record.size(); ++field) {
        if (!lines_.Next(record[field]))
            return false;
        cutOff_ = (cutOff_ || !record[field].empty()) && field + 1 < record.size();
    }
    return true;
}

std::string WithRecords(std::string_view bytes, const std::vector<ItemRecord>& records) {
    const std::string_view lineEnd = LineEndOf(bytes);
    std::string text(WholeRecords(bytes));
    EndLastLine(text, lineEnd);
    for (const ItemRecord& record : records)
        text += RecordText(ViewOf(record), lineEnd);
    return text;
}

std::string WithRecordAt(std::string_view bytes, const RecordView& place,
                         const ItemRecord& record) {
    const auto [before, behind] = AroundRecord(WholeRecords(bytes), place);
    return std::string(before) + RecordText(ViewOf(record), LineEndOf(bytes)) + std::string(behind);
}

std::string WithoutRecordAt(std::string_view bytes, const RecordView& place) {
    const auto [before, behind] = AroundRecord(WholeRecords(bytes), place);
    return std::string(before) + std::string(behind);
}

} // namespace emporium
