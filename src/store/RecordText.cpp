#include "store/RecordText.h"

#include "store/RecordReader.h"
#include "text/LineEnds.h"

#include <algorithm>

namespace emporium {

namespace {

std::string RecordText(const RecordView& record, std::string_view lineEnd) {
    std::string text;
    for (const std::string_view field : record)
        text.append(field).append(lineEnd);
    return text;
}

// The place behind the record's last line.
std::size_t EndOf(const RecordView& record, std::string_view bytes) {
    const std::string_view last = record.back();
    const auto lastEnd = static_cast<std::size_t>(last.data() + last.size() - bytes.data());
    return std::min(bytes.find('\n', lastEnd), bytes.size() - 1) + 1;
}

// The bytes up to the end of the last whole record; empty lines behind it hold nothing.
std::string_view WholeRecords(std::string_view bytes) {
    const auto ends = bytes.substr(bytes.find_last_not_of("\r\n") + 1);
    if (ends.size() < bytes.size() && std::count(ends.begin(), ends.end(), '\n') < 2)
        return bytes; // a record's line is the last one, so that none have to be counted
    RecordReader reader(bytes);
    std::size_t end = 0;
    for (RecordView record; reader.Next(record);)
        end = EndOf(record, bytes);
    return bytes.substr(0, end);
}

// The text with others in the place of the record's lines.
std::string WithLinesAt(std::string_view bytes, const RecordView& place, std::string_view lines) {
    bytes = WholeRecords(bytes);
    const auto begin = static_cast<std::size_t>(place.front().data() - bytes.data());
    const auto end = EndOf(place, bytes);
    std::string text;
    text.reserve(bytes.size() + lines.size()); // so that they are copied once
    return text.append(bytes.substr(0, begin)).append(lines).append(bytes.substr(end));
}

} // namespace

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
    return WithLinesAt(bytes, place, RecordText(ViewOf(record), LineEndOf(bytes)));
}

std::string WithoutRecordAt(std::string_view bytes, const RecordView& place) {
    return WithLinesAt(bytes, place, "");
}

} // namespace emporium
