#include "store/CategoryList.h"

#include "files/FileFailure.h"
#include "store/CategoryPaths.h"
#include "text/GermanNumber.h"
#include "text/LineEnds.h"
#include "text/LineReader.h"

#include <algorithm>
#include <optional>
#include <unordered_set>

namespace emporium {

namespace {

std::string_view FirstLine(std::string_view text) {
    std::string_view line;
    LineReader(text).Next(line);
    return line;
}

// What the first line says, nothing if it is no number.
std::optional<double> CountIn(std::string_view listText) {
    return ReadGermanNumber(FirstLine(listText));
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

// The list of that text, with the number of its names on the first line.
CategoryList Numbered(std::string_view listText) {
    CategoryList list{FileText::State::Whole, {}, {}, NamesIn(listText, listText.size())};
    list.bytes = " " + std::to_string(list.names.size()) + " " + std::string(LineEndOf(listText)) +
                 std::string(listText.substr(listText.find('\n') + 1));
    return list;
}

} // namespace

std::filesystem::path CategoryListPath(const Folders& folders) {
    return folders.EmporiumFolder() / "ItemKategorien.dat";
}

CategoryList ReadCategoryNames(const Disk& disk) {
    FileText text = disk.files.read(CategoryListPath(disk.folders), LargestList);
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
        count ? std::string("Die erste Zeile zählt "_ansi).append(Trim(FirstLine(list.bytes)))
              : "In der ersten Zeile fehlt die Zahl der";
    return std::string(file) + counted + " Kategorien, gelesen wurden " +
           std::to_string(list.names.size()) +
           std::string(". Berichtigt die Liste in einem Texteditor; bis dahin wird sie nicht "
                       "verändert."_ansi);
}

CategoryList WithCategory(const CategoryList& list, std::string_view name) {
    const std::string_view lineEnd = LineEndOf(list.bytes);
    std::string text = list.bytes;
    EndLastLine(text, lineEnd);
    return Numbered(text.append(name).append(lineEnd));
}

CategoryList WithoutCategory(const CategoryList& list, std::string_view name) {
    std::string text;
    std::string_view rest = list.bytes;
    for (bool isNumber = true; !rest.empty(); isNumber = false) {
        const auto end = std::min(rest.find('\n'), rest.size() - 1) + 1;
        if (isNumber || FirstLine(rest) != name)
            text.append(rest.substr(0, end));
        rest.remove_prefix(end);
    }
    return Numbered(text);
}

} // namespace emporium
