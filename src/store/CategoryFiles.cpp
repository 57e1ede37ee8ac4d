#include "store/CategoryFiles.h"

#include "files/FileFailure.h"
#include "text/GermanNumber.h"
#include "text/LineReader.h"

#include <algorithm>
#include <optional>
#include <unordered_set>

namespace emporium {

namespace {

constexpr std::string_view LineEnd = "\r\n";
constexpr std::string_view CategoryEnding = ".dat";

// Names of devices, which Windows takes for the device whatever ending follows.
bool IsDeviceName(std::string_view name) {
    const std::string_view stem = name.substr(0, name.find('.'));
    const std::string folded = FoldCase(stem.substr(0, stem.find_last_not_of(' ') + 1));
    static const std::unordered_set<std::string> devices = {"con", "prn",    "aux",
                                                            "nul", "conin$", "conout$"};
    if (devices.count(folded) > 0)
        return true;
    constexpr std::string_view numbers = "0123456789¹²³"_ansi;
    return folded.size() == 4 && (folded.starts_with("com") || folded.starts_with("lpt")) &&
           numbers.find(folded.back()) != numbers.npos;
}

// CR LF, or what ends the text's first line if that is a lone LF.
std::string_view LineEndOf(std::string_view text) {
    const auto end = text.find('\n');
    return end == text.npos || (end > 0 && text[end - 1] == '\r') ? LineEnd : "\n";
}

void EndLastLine(std::string& text, std::string_view lineEnd) {
    if (!text.empty() && text.back() != '\n')
        text.append(lineEnd);
}

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
        end = std::min(bytes.find('\n', lastEnd), bytes.size() - 1) + 1;
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

// What the first line says, nothing if it is no number.
std::optional<double> CountIn(std::string_view listText) {
    std::string_view line;
    LineReader(listText).Next(line);
    return ReadGermanNumber(line);
}

std::vector<std::string> NamesIn(std::string_view listText, std::size_t limit) {
    std::vector<std::string> names;
    std::unordered_set<std::string_view> seen = {"", AllCategories};
    LineReader lines(listText);
    std::string_view line;
    if (CountIn(listText))
        lines.Next(line);
    while (names.size() < limit && lines.Next(line))
        if (seen.insert(line).second)
            names.emplace_back(line);
    return names;
}

// The list's text with the number of its names on the first line.
std::string Numbered(std::string_view listText) {
    return " " + std::to_string(NamesIn(listText, listText.size()).size()) + " " +
           std::string(LineEndOf(listText)) + std::string(listText.substr(listText.find('\n') + 1));
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

const std::array<std::string_view, 3>& FixedCategories() {
    static constexpr std::array<std::string_view, 3> names = {"Nahkampfwaffen", "Fernwaffen",
                                                              "Rüstungen"_ansi};
    return names;
}

bool IsFixedCategory(std::string_view name) {
    const auto& fixed = FixedCategories();
    return std::find(fixed.begin(), fixed.end(), name) != fixed.end();
}

std::filesystem::path CategoryListPath(const Folders& folders) {
    return folders.EmporiumFolder() / "ItemKategorien.dat";
}

std::filesystem::path CategoryPath(const Folders& folders, std::string_view name) {
    return folders.EmporiumFolder() / ToPath(std::string(name).append(CategoryEnding));
}

bool IsPlainName(std::string_view name) {
    constexpr std::string_view forbidden = "\\/:*?\"<>|";
    return !name.empty() && !IsDeviceName(name) &&
           std::none_of(name.begin(), name.end(), [&](char c) {
               return static_cast<unsigned char>(c) < 0x20 || c == 0x7F ||
                      forbidden.find(c) != forbidden.npos;
           });
}

bool IsOwnFile(std::string_view name) {
    static const std::array<std::string, 6> own = {
        "itemkategorien",         "shopgeneratorconfig", "shopgeneratorshops",
        "emporiumnahkampfwaffen", "emporiumfernwaffen",  std::string("emporiumrüstungen"_ansi)};
    return std::find(own.begin(), own.end(), FoldCase(name)) != own.end();
}

CategoryList ReadCategoryNames(const Disk& disk) {
    FileText text = disk.files.read(CategoryListPath(disk.folders));
    CategoryList list{text.state, ReasonOf(text), std::move(text.bytes), {}};
    list.names = NamesIn(list.bytes, MaxRows);
    return list;
}

std::string CategoryListFault(const CategoryList& list) {
    constexpr std::string_view file = "ItemKategorien.dat: ";
    if (list.state != FileText::State::Whole)
        return std::string(file) + ReasonText(list.reason);
    const auto count = CountIn(list.bytes);
    if (count && *count >= 0 && *count <= static_cast<double>(list.names.size()))
        return {}; // names that are not counted are names all the same
    const std::string counted =
        count ? std::string("Die erste Zeile zählt "_ansi) + GermanNumberText(*count)
              : "In der ersten Zeile fehlt die Zahl der";
    return std::string(file) + counted + " Kategorien, gelesen wurden " +
           std::to_string(list.names.size()) +
           std::string(". Berichtigt die Liste in einem Texteditor; bis dahin wird sie nicht "
                       "verändert."_ansi);
}

std::string WithCategory(const CategoryList& list, std::string_view name) {
    const std::string_view lineEnd = LineEndOf(list.bytes);
    std::string text = list.bytes;
    EndLastLine(text, lineEnd);
    return Numbered(text.append(name).append(lineEnd));
}

std::string WithoutCategory(const CategoryList& list, std::string_view name) {
    std::string text;
    std::string_view rest = list.bytes;
    for (bool isNumber = true; !rest.empty(); isNumber = false) {
        const auto end = std::min(rest.find('\n'), rest.size() - 1) + 1;
        std::string_view line;
        LineReader(rest).Next(line);
        if (isNumber || line != name)
            text.append(rest.substr(0, end));
        rest.remove_prefix(end);
    }
    return Numbered(text);
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

CategoryFile ReadCategoryFile(const Disk& disk, std::string_view name) {
    FileText text{
        FileText::State::Unreadable, {}, std::make_error_code(std::errc::invalid_argument)};
    if (IsPlainName(name) && !IsOwnFile(name))
        text = disk.files.read(CategoryPath(disk.folders, name));
    CategoryFile file{
        text.state, text.reason, std::make_shared<const std::string>(std::move(text.bytes)), {}};
    RecordReader reader(*file.bytes);
    for (RecordView record; reader.Next(record);)
        file.records.push_back(record);
    file.cutOff = reader.CutOff();
    return file;
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

std::vector<std::string> CategoryFaults(std::string_view name, const CategoryFile& file) {
    std::vector<std::string> faults;
    const auto add = [&](std::string_view what) {
        faults.push_back(std::string(name).append(CategoryEnding).append(": ").append(what));
    };
    if (file.state == FileText::State::Absent)
        add("Die Datei fehlt.");
    if (file.state == FileText::State::Unreadable)
        add(ReasonText(file.reason));
    if (file.cutOff)
        add(std::string(RecordIsCutOff)
                .append(" Die Datei wird nur angezeigt und nicht verändert."_ansi));
    const auto unmarked =
        std::count_if(file.records.begin(), file.records.end(), [](const RecordView& record) {
            return !HasMark(record, NameField) || !HasMark(record, PriceField);
        });
    if (unmarked > 0)
        add(std::string("Datensätze ohne Namen, Wert, Preis oder Währung: "_ansi) +
            std::to_string(unmarked) + ".");
    return faults;
}

} // namespace emporium
