#include "store/CategoryRefusal.h"

#include "store/CategoryPaths.h"
#include "text/Ansi.h"

#include <algorithm>

namespace emporium {

namespace {

bool HasGoodForm(std::string_view name) {
    constexpr std::size_t longest = 100;
    const auto isEdge = [](char c) { return c == ' ' || c == '.'; };
    return IsPlainName(name) && name.size() <= longest && !isEdge(name.front()) &&
           !isEdge(name.back());
}

// A file whose name differs at most in case; on Windows that is the same file.
bool FileStands(const Disk& disk, std::string_view name) {
    const std::filesystem::path file = CategoryPath(disk.folders, name);
    if (disk.files.status(file).kind != FileStatus::Kind::Absent)
        return true;
    const std::string wanted = FoldCase(FromPath(file.filename()));
    std::vector<std::filesystem::path> entries;
    disk.files.entries(disk.folders.EmporiumFolder(), entries);
    return std::any_of(entries.begin(), entries.end(), [&wanted](const auto& entry) {
        return FoldCase(FromPath(entry.filename())) == wanted;
    });
}

} // namespace

std::string CategoryNameRefusal(const Disk& disk, const std::vector<std::string>& listed,
                                std::string_view name) {
    if (name == AllCategories || std::find(listed.begin(), listed.end(), name) != listed.end())
        return std::string(
            "Diese Kategorie existiert bereits, ihr müsst einen anderen Namen wählen."_ansi);
    if (!HasGoodForm(name))
        return std::string(
            "Diesen Namen kann keine Datei tragen, ihr müsst einen anderen wählen. Er darf "
            "höchstens 100 Zeichen lang sein, keines der Zeichen \\ / : * ? \" < > | enthalten, "
            "nicht mit einem Leerzeichen oder Punkt beginnen oder enden und kein Gerätename "
            "wie CON sein."_ansi);
    constexpr std::size_t longestInUtf8 = 230; // file systems take 255 bytes, endings included
    if (ToUtf8(name).size() > longestInUtf8)
        return std::string(
            "Dieser Name ist als Dateiname zu lang, weil manche seiner Zeichen darin "
            "mehrfach zählen; ihr müsst einen kürzeren wählen."_ansi);
    const std::string folded = FoldCase(name);
    const bool differsInCase =
        std::any_of(listed.begin(), listed.end(),
                    [&folded](const std::string& other) { return FoldCase(other) == folded; });
    if (differsInCase)
        return std::string("Eine Kategorie, deren Name sich nur in Groß- und Kleinschreibung "
                           "unterscheidet, existiert bereits, ihr müsst einen anderen Namen "
                           "wählen."_ansi);
    if (IsOwnFile(name) || FileStands(disk, name))
        return std::string("Im Ordner der Kategorien gehört dieser Name schon einer anderen "
                           "Datei, ihr müsst einen anderen wählen."_ansi);
    return {};
}

} // namespace emporium
