#include "store/CategoryFiles.h"

#include "base/Ansi.h"
#include "base/FileWriting.h"
#include "base/LineReader.h"

#include <algorithm>
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

} // namespace

std::string_view ItemName(const ItemRecord& record) {
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
    constexpr std::size_t longest = 100;
    constexpr std::size_t longestInUtf8 = 230; // file systems take 255 bytes, endings included
    constexpr std::string_view forbidden = "\\/:*?\"<>|";
    if (name.empty() || name.size() > longest || ToUtf8(name).size() > longestInUtf8 ||
        IsDeviceName(name))
        return false;
    const auto isEdge = [](char c) { return c == ' ' || c == '.'; };
    if (isEdge(name.front()) || isEdge(name.back()))
        return false;
    return std::none_of(name.begin(), name.end(), [&](char c) {
        return static_cast<unsigned char>(c) < 0x20 || c == 0x7F ||
               forbidden.find(c) != forbidden.npos;
    });
}

CategoryList ReadCategoryNames(const FileLayer& files, const Folders& folders) {
    const FileText text = files.read(CategoryListPath(folders));
    CategoryList list{text.state, text.reason, {}};
    if (text.state == FileText::State::Absent)
        list.reason = std::make_error_code(std::errc::no_such_file_or_directory);
    std::unordered_set<std::string_view> seen = {"", AllCategories};
    LineReader lines(text.bytes);
    std::string_view line;
    lines.Next(line);
    while (lines.Next(line))
        if (seen.insert(line).second)
            list.names.emplace_back(line);
    return list;
}

std::string CategoryListText(const std::vector<std::string>& names) {
    std::string text = " " + std::to_string(names.size()) + " ";
    text += LineEnd;
    for (const std::string& name : names)
        text.append(name).append(LineEnd);
    return text;
}

bool RecordReader::Next(RecordView& record) {
    for (std::size_t field = 0; field < record.size(); ++field)
        if (!lines_.Next(record[field])) {
            cutOff_ = cutOff_ || field > 0;
            return false;
        }
    return true;
}

CategoryFile ReadCategoryFile(const FileLayer& files, const Folders& folders,
                              std::string_view name) {
    CategoryFile file;
    if (!IsPlainName(name)) {
        file.state = FileText::State::Unreadable;
        file.reason = std::make_error_code(std::errc::invalid_argument);
        return file;
    }
    FileText text = files.read(CategoryPath(folders, name));
    file.state = text.state;
    file.reason = text.reason;
    file.bytes = std::move(text.bytes);
    RecordReader reader(file.bytes);
    for (RecordView lines; reader.Next(lines);)
        std::copy(lines.begin(), lines.end(), file.records.emplace_back().begin());
    file.cutOff = reader.CutOff();
    return file;
}

void AppendRecord(std::string& text, const ItemRecord& record) {
    for (const std::string& field : record)
        text.append(field).append(LineEnd);
}

std::string WithRecords(const CategoryFile& file, const std::vector<ItemRecord>& records) {
    std::string text = file.bytes;
    if (!text.empty() && text.back() != '\n')
        text += LineEnd;
    for (const ItemRecord& record : records)
        AppendRecord(text, record);
    return text;
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
        add("Der letzte Datensatz ist nicht vollständig. Die Datei wird nur angezeigt und nicht verändert."_ansi);
    const auto flawed =
        std::count_if(file.records.begin(), file.records.end(), [](const ItemRecord& r) {
            return r[NameField].empty() || r[PriceField].empty();
        });
    if (flawed > 0)
        add(std::to_string(flawed) +
            std::string(" Datensätze haben keinen Namen oder keinen Preis."_ansi));
    return faults;
}

std::string FaultsText(const std::vector<std::string>& faults) {
    constexpr std::size_t shown = 12;
    std::string text = "Nicht alles ist gelungen:\n";
    for (std::size_t i = 0; i < faults.size() && i < shown; ++i)
        text += "\n" + faults[i];
    if (faults.size() > shown)
        text += "\n... und " + std::to_string(faults.size() - shown) + " weitere Meldungen.";
    return text;
}

} // namespace emporium
