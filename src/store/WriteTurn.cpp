#include "store/WriteTurn.h"

#include "files/Journal.h"
#include "files/Recovery.h"
#include "text/Ansi.h"

#include <memory>

namespace emporium {

namespace {

Outcome CannotLock(const std::filesystem::path& folder, const std::error_code& error) {
    if (error == std::errc::device_or_resource_busy)
        return {false, std::string("Ein anderes Fenster des Programms schreibt gerade. Versucht es "
                                   "gleich noch einmal."_ansi)};
    return {false, FailureText("Es wurde nichts geschrieben: Der Ordner der Kategorien ist nicht "
                               "zugänglich."_ansi,
                               {folder / LockName, error})};
}

// The notices, then the text, with a line between.
std::string Told(std::vector<std::string> parts, const std::string& text) {
    if (!text.empty())
        parts.push_back(text);
    std::string told;
    for (const std::string& part : parts)
        told.append(told.empty() ? "" : "\n\n").append(part);
    return told;
}

} // namespace

Outcome InTurn(const Disk& disk, const std::function<Outcome()>& work) {
    const auto folder = disk.folders.EmporiumFolder();
    std::shared_ptr<void> lock;
    if (const auto error = disk.files.lock(folder, lock))
        return CannotLock(folder, error);
    const Recovery recovery = FinishJournal(disk.files, folder);
    if (recovery.failure)
        return {false, FailureText("Ein früherer Schreibvorgang konnte nicht beendet werden."_ansi,
                                   *recovery.failure)};
    Outcome outcome = work();
    outcome.text = Told(recovery.notices, outcome.text);
    return outcome;
}

Outcome WriteChanges(const Disk& disk, const std::vector<FileChange>& changes,
                     std::string_view what) {
    const auto result = WriteFiles(disk.files, disk.folders.EmporiumFolder(), changes);
    if (!result.failure)
        return {true, {}};
    if (result.stands)
        what = "Die Änderung gilt, aber eine Datei konnte noch nicht geschrieben werden. Das wird "
               "beim nächsten Speichern oder beim nächsten Start nachgeholt; bis dahin wird nichts "
               "anderes geschrieben."_ansi;
    return {result.stands, FailureText(what, *result.failure)};
}

std::string FinishBeforeReading(const Disk& disk) {
    const FileStatus journal = disk.files.status(disk.folders.EmporiumFolder() / JournalName);
    if (journal.kind == FileStatus::Kind::Absent && !journal.reason)
        return {};
    Outcome outcome = InTurn(disk, [] { return Outcome{true, {}}; });
    return outcome.stands ? std::move(outcome.text)
                          : std::string("Ein früherer Schreibvorgang ist noch nicht beendet; "
                                        "was ihr seht, kann veraltet sein."_ansi);
}

} // namespace emporium
