#include "itemeditor/ItemToDisk.h"

#include "itemeditor/CategoryChoice.h"
#include "store/CategoryFaults.h"
#include "store/CategoryList.h"
#include "store/RecordText.h"
#include "store/WriteTurn.h"

#include <algorithm>
#include <optional>

namespace emporium {

const WriteWording SavingWords = {
    "Der Gegenstand konnte nicht gespeichert werden.",
    ".dat wurde inzwischen von einem anderen Programm geändert. Soll euer Stand trotzdem "
    "gespeichert werden? Die andere Änderung geht dann verloren."_ansi};
const WriteWording DeletingWords = {
    "Der Gegenstand konnte nicht gelöscht werden."_ansi,
    ".dat wurde inzwischen von einem anderen Programm geändert. Soll der Gegenstand trotzdem "
    "gelöscht werden? Die andere Änderung geht dann verloren."_ansi};

namespace {

constexpr std::string_view NotWhole =
    "Diese Kategorie konnte nicht vollständig gelesen werden, deshalb wird ihre Datei nicht "
    "verändert."_ansi;
constexpr std::string_view Gone = "Diese Kategorie gibt es nicht mehr. Wählt eine andere."_ansi;

Outcome Refusal(const std::string& category, std::string_view why) {
    return {false, CategoryLine(category, why)};
}

// A missing file is made anew, but not for a category that another program has deleted: nobody
// would find the item there.
bool IsListed(const Disk& disk, const std::string& category) {
    const CategoryList list = ReadCategoryNames(disk);
    return list.state != FileText::State::Whole ||
           std::find(list.names.begin(), list.names.end(), category) != list.names.end();
}

// Whether the row's file can be written at all.
Outcome Writable(const Disk& disk, const ViewFile& file, const FileText& present,
                 const WriteWording& words) {
    if (!file.canBeWritten)
        return Refusal(file.name, NotWhole);
    if (present.state == FileText::State::Unreadable)
        return {false,
                FailureText(words.failed, {CategoryPath(disk.folders, file.name), present.reason})};
    if (present.state == FileText::State::Absent && !IsListed(disk, file.name))
        return Refusal(file.name, Gone);
    return {true, {}};
}

using MaybeText = std::optional<std::string>;

// Compares and writes; the caller has the turn. `accepted` is another program's state of the file
// that the user wants to write over. At any other nothing is written, and it becomes `foreign`.
Outcome CompareAndWrite(ItemEditor& editor, const Disk& disk, const RowChange& change,
                        const WriteWording& words, const MoreChanges& more,
                        const MaybeText& accepted, MaybeText& foreign) {
    const ViewFile& file = editor.FileAt(change.home);
    FileText present = disk.files.read(CategoryPath(disk.folders, file.name), LargestFile);
    if (Outcome writable = Writable(disk, file, present, words); !writable.stands)
        return writable;
    if (present.bytes != *file.bytes && present.bytes != accepted) {
        foreign = std::move(present.bytes);
        return {};
    }
    std::vector<FileChange> changes;
    if (Outcome added = more ? more(changes) : Outcome{true, {}}; !added.stands)
        return added;
    changes.push_back({CategoryPath(disk.folders, file.name), FileTextWith(editor, change)});
    Outcome outcome = WriteChanges(disk, changes, words.failed);
    if (outcome.stands)
        TakeOver(editor, change,
                 std::make_shared<const std::string>(std::move(*changes.back().contents)));
    return outcome;
}

} // namespace

bool WriteRow(ItemEditor& editor, const Platform& platform, const RowChange& change,
              const WriteWording& words, const MoreChanges& more) {
    const Disk& disk = platform.disk;
    for (MaybeText accepted;;) {
        MaybeText foreign;
        const Outcome outcome = InTurn(disk, [&] {
            return CompareAndWrite(editor, disk, change, words, more, accepted, foreign);
        });
        const bool stands = Tell(platform, outcome);
        if (!foreign)
            return stands;
        const std::string& name = editor.FileAt(change.home).name;
        if (!platform.AskYesNo({name + std::string(words.question), BoxIcon::Warning, true})) {
            ReloadItems(editor, platform);
            return false;
        }
        accepted = std::move(foreign);
    }
}

Outcome AppendTo(const Disk& disk, const std::string& category, const ItemRecord& record,
                 std::vector<FileChange>& changes) {
    const auto path = CategoryPath(disk.folders, category);
    const CategoryFile file = ReadCategoryFile(disk, category);
    if (file.state == FileText::State::Unreadable)
        return {false, FailureText(SavingWords.failed, {path, file.reason})};
    if (!file.CanBeWritten())
        return Refusal(category, NotWhole);
    if (file.state == FileText::State::Absent && !IsListed(disk, category))
        return Refusal(category, Gone);
    if (file.records.size() >= MaxRows)
        return Refusal(category, CategoryIsFull);
    changes.push_back({path, WithRecords(*file.bytes, {record})});
    return {true, {}};
}

} // namespace emporium
