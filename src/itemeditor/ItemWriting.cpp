#include "itemeditor/ItemWriting.h"

#include "itemeditor/CategoryChoice.h"
#include "store/CategoryList.h"
#include "store/WriteTurn.h"

#include <algorithm>
#include <optional>

namespace emporium {

const WriteWording SavingWords = {
    "Der Gegenstand konnte nicht gespeichert werden.",
    ".dat wurde inzwischen von einem anderen Programm geändert. Soll euer Stand trotzdem "
    "gespeichert werden ? Die andere Änderung geht dann verloren."_ansi};
const WriteWording DeletingWords = {
    "Der Gegenstand konnte nicht gelöscht werden."_ansi,
    ".dat wurde inzwischen von einem anderen Programm geändert. Soll der Gegenstand trotzdem "
    "gelöscht werden ? Die andere Änderung geht dann verloren."_ansi};

namespace {

constexpr std::string_view NotWhole =
    "Diese Kategorie konnte nicht vollständig gelesen werden, deshalb wird ihre Datei nicht "
    "verändert."_ansi;
constexpr std::string_view Gone = "Diese Kategorie gibt es nicht mehr. Wählt eine andere."_ansi;

std::string RefusalOf(const std::string& category, std::string_view why) {
    return category + ".dat: " + std::string(why);
}

// A missing file is made anew, but not for a category that another program has deleted: nobody
// would find the item there.
bool IsListed(const Disk& disk, const std::string& category) {
    const CategoryList list = ReadCategoryNames(disk);
    return list.state != FileText::State::Whole ||
           std::find(list.names.begin(), list.names.end(), category) != list.names.end();
}

// What one try came to. The text is for a box that opens when the turn is over.
struct Attempt {
    bool stands = false;
    std::string text;
    std::optional<std::string> foreign; // what another program has made of the file
};

Attempt Refused(std::string text) {
    return {false, std::move(text), std::nullopt};
}

std::string FileTextWith(const ItemEditor& editor, std::string_view bytes,
                         const RowChange& change) {
    if (change.row == editor.ItemCount())
        return WithRecords(bytes, {*change.record});
    const RecordView& place = editor.Record(change.row);
    return change.record ? WithRecordAt(bytes, place, *change.record)
                         : WithoutRecordAt(bytes, place);
}

// The records as the file holds them now.
void TakeOver(ItemEditor& editor, int home, const RowChange& change, SharedText text) {
    if (change.row == editor.ItemCount())
        editor.Items.push_back({{}, home});
    else if (!change.record)
        editor.Items.erase(editor.Items.begin() + change.row);
    RecordReader reader(*text);
    for (ItemRow& row : editor.Items)
        if (row.home == home)
            reader.Next(row.record);
    editor.viewFiles[static_cast<std::size_t>(home)].bytes = std::move(text);
}

// Why the row's file can't be written at all; empty if it can.
std::string FileRefusal(const Disk& disk, const ViewFile& file, const FileText& present,
                        const WriteWording& words) {
    if (!file.canBeWritten)
        return RefusalOf(file.name, NotWhole);
    if (present.state == FileText::State::Unreadable)
        return FailureText(words.failed, {CategoryPath(disk.folders, file.name), present.reason});
    if (present.state == FileText::State::Absent && !IsListed(disk, file.name))
        return RefusalOf(file.name, Gone);
    return {};
}

Attempt Write(ItemEditor& editor, const Disk& disk, int home, const RowChange& change,
              const WriteWording& words, std::vector<FileChange> changes) {
    const ViewFile& file = editor.FileAt(home);
    auto text = std::make_shared<const std::string>(FileTextWith(editor, *file.bytes, change));
    changes.push_back({CategoryPath(disk.folders, file.name), *text});
    const auto result = WriteFiles(disk.files, disk.folders.EmporiumFolder(), std::move(changes));
    if (!result.stands)
        return Refused(FailureText(words.failed, *result.failure));
    TakeOver(editor, home, change, std::move(text));
    return {true, result.failure ? StillToCome(*result.failure) : std::string(), std::nullopt};
}

// Compares and writes in one turn. `accepted` is a foreign state that the user has seen and wants
// to write over.
Attempt TryToWrite(ItemEditor& editor, const Disk& disk, int home, const RowChange& change,
                   const WriteWording& words, const MoreChanges& more,
                   const std::optional<std::string>& accepted) {
    const WriteTurn turn = TakeTurn(disk);
    if (!turn.refusal.empty())
        return Refused(turn.refusal);
    const ViewFile& file = editor.FileAt(home);
    FileText present = disk.files.read(CategoryPath(disk.folders, file.name));
    if (auto refusal = FileRefusal(disk, file, present, words); !refusal.empty())
        return Refused(std::move(refusal));
    if (present.bytes != *file.bytes && present.bytes != accepted)
        return {false, AfterTurn(turn, ""), std::move(present.bytes)};
    std::vector<FileChange> changes;
    if (auto refusal = more ? more(changes) : std::string(); !refusal.empty())
        return Refused(std::move(refusal));
    Attempt attempt = Write(editor, disk, home, change, words, std::move(changes));
    attempt.text = AfterTurn(turn, attempt.text);
    return attempt;
}

} // namespace

bool WriteRow(ItemEditor& editor, const Platform& platform, int home, const RowChange& change,
              const WriteWording& words, const MoreChanges& more) {
    std::optional<std::string> accepted;
    for (;;) {
        Attempt attempt = TryToWrite(editor, platform.disk, home, change, words, more, accepted);
        if (!attempt.text.empty())
            platform.ShowMessage(attempt.text);
        if (!attempt.foreign)
            return attempt.stands;
        if (!platform.AskYesNo(
                {editor.FileAt(home).name + std::string(words.question), BoxIcon::Warning, true})) {
            ReloadItems(editor, platform);
            return false;
        }
        accepted = std::move(attempt.foreign);
    }
}

std::string AppendTo(const Disk& disk, const std::string& category, const ItemRecord& record,
                     std::vector<FileChange>& changes) {
    const auto path = CategoryPath(disk.folders, category);
    const CategoryFile file = ReadCategoryFile(disk, category);
    if (file.state == FileText::State::Unreadable)
        return FailureText(SavingWords.failed, {path, file.reason});
    if (!file.CanBeWritten())
        return RefusalOf(category, NotWhole);
    if (file.state == FileText::State::Absent && !IsListed(disk, category))
        return RefusalOf(category, Gone);
    if (file.records.size() >= MaxRows)
        return RefusalOf(category, CategoryIsFull);
    changes.push_back({path, WithRecords(*file.bytes, {record})});
    return {};
}

} // namespace emporium
