#include "store/ArsenalImport.h"

#include "files/FileWriting.h"
#include "store/CategoryFaults.h"
#include "store/RecordText.h"
#include "text/Ansi.h"
#include "text/LineReader.h"

#include <algorithm>
#include <array>
#include <unordered_set>

namespace emporium {

namespace {

// Where a source record holds what, counted from its name line.
struct SourceForm {
    std::size_t lines;
    std::size_t description;
    std::size_t price;
    std::size_t unit;
};

constexpr std::size_t WeightLine = 1;

// In the order of FixedCategories. The availability is the last line.
constexpr std::array<SourceForm, 3> SourceForms = {
    {{28, 3, 10, 26}, {22, 3, 8, 20}, {19, 2, 8, 17}}};

constexpr std::string_view UnitLetters = "DSHP";

// The lines of the next source record; false if it ends early. One line before it is passed over.
bool ReadSourceRecord(LineReader& source, std::vector<std::string_view>& lines) {
    std::string_view separator;
    source.Next(separator);
    for (std::string_view& line : lines) {
        if (source.AtEnd())
            return false;
        source.Next(line);
    }
    return true;
}

ItemRecord ToItemRecord(const std::vector<std::string_view>& lines, const SourceForm& form) {
    ItemRecord record;
    record[NameField] = std::string(lines[0]) + '1';
    record[WeightField] = lines[WeightLine];
    record[PriceField] = std::string(lines[form.price]).append(lines[form.unit].substr(0, 1));
    record[DescriptionField] = lines[form.description];
    record[AvailabilityField] = lines.back();
    return record;
}

bool CanBeItem(const std::vector<std::string_view>& lines, const SourceForm& form) {
    const std::string_view unit = lines[form.unit];
    return !lines[0].empty() && !unit.empty() && UnitLetters.find(unit[0]) != UnitLetters.npos;
}

// The source's records whose names the category does not have. Two of one name are both new.
// `passedOver` gets the names of those that can't be items.
std::vector<ItemRecord> NewRecords(std::string_view sourceText, const SourceForm& form,
                                   const CategoryFile& category,
                                   std::vector<std::string>& passedOver) {
    std::unordered_set<std::string_view> present;
    present.reserve(category.records.size());
    for (const RecordView& record : category.records)
        present.insert(ItemName(record));
    std::vector<ItemRecord> added;
    LineReader source(sourceText);
    std::string_view heading;
    source.Next(heading);
    std::vector<std::string_view> lines(form.lines);
    while (!source.AtEnd() && ReadSourceRecord(source, lines))
        if (!CanBeItem(lines, form))
            passedOver.emplace_back(lines[0]);
        else if (present.count(lines[0]) == 0)
            added.push_back(ToItemRecord(lines, form));
    return added;
}

// Leaves out what the category has no room for.
void FitInto(const CategoryFile& category, std::string_view name, std::vector<ItemRecord>& added,
             std::vector<std::string>& faults) {
    const auto room = MaxRows - std::min<std::size_t>(MaxRows, category.records.size());
    if (added.size() <= room)
        return;
    added.resize(room);
    faults.push_back(CategoryLine(name, CategoryIsFull));
}

std::string PassedOverText(const std::filesystem::path& source,
                           const std::vector<std::string>& names) {
    constexpr std::size_t shown = 3;
    std::string text = "Arsenal, " + FromPath(source.filename()) +
                       std::string(": Ohne Namen oder Währung, deshalb übergangen: "_ansi) +
                       std::to_string(names.size());
    for (std::size_t i = 0; i < names.size() && i < shown; ++i)
        text += (i == 0 ? " (" : ", ") + (names[i].empty() ? "ohne Namen" : names[i]);
    return text + (names.size() > shown ? ", ...)." : ").");
}

void ImportCategory(const Disk& disk, std::string_view name, const SourceForm& form,
                    std::vector<std::string>& faults) {
    const auto sourceFile =
        disk.folders.DataFolder / "Arsenal" / CategoryPath(disk.folders, name).filename();
    const FileText source = disk.files.read(sourceFile, LargestList);
    if (source.state == FileText::State::Unreadable)
        faults.push_back("Arsenal, " + FaultLine({sourceFile, source.reason}));
    if (!source.IsWhole())
        return;
    const CategoryFile category = ReadCategoryFile(disk, name);
    if (!category.CanBeWritten()) {
        const auto found = CategoryFaults(name, category);
        faults.insert(faults.end(), found.begin(), found.end());
        return;
    }
    std::vector<std::string> passedOver;
    auto added = NewRecords(source.bytes, form, category, passedOver);
    if (!passedOver.empty())
        faults.push_back(PassedOverText(sourceFile, passedOver));
    FitInto(category, name, added, faults);
    if (added.empty())
        return;
    const auto file = CategoryPath(disk.folders, name);
    const auto result = WriteFiles(disk.files, disk.folders.EmporiumFolder(),
                                   {{file, WithRecords(*category.bytes, added)}});
    if (result.failure)
        faults.push_back(FaultLine(*result.failure));
}

} // namespace

void ImportArsenal(const Disk& disk, std::vector<std::string>& faults) {
    for (std::size_t i = 0; i < SourceForms.size(); ++i)
        ImportCategory(disk, FixedCategories()[i], SourceForms[i], faults);
}

} // namespace emporium
