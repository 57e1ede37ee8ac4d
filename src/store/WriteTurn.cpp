#include "store/WriteTurn.h"

#include "files/Journal.h"
#include "files/Recovery.h"
#include "text/Ansi.h"

namespace emporium {

WriteTurn TakeTurn(const Disk& disk) {
    const auto folder = disk.folders.EmporiumFolder();
    WriteTurn turn;
    const auto error = disk.files.lock(folder, turn.lock);
    if (error == std::errc::device_or_resource_busy)
        return {nullptr,
                std::string("Ein anderes Fenster des Programms schreibt gerade. Versucht es gleich "
                            "noch einmal."_ansi),
                {}};
    if (error)
        return {
            nullptr,
            FailureText("Der Ordner der Kategorien ist nicht zugänglich."_ansi, {folder, error}),
            {}};
    Recovery recovery = FinishJournal(disk.files, folder);
    turn.notices = std::move(recovery.notices);
    if (!recovery.failure)
        return turn;
    return {nullptr,
            FailureText("Ein früherer Schreibvorgang konnte nicht beendet werden."_ansi,
                        *recovery.failure),
            {}};
}

std::string AfterTurn(const WriteTurn& turn, std::string_view text) {
    constexpr std::string_view gap = "\n\n";
    std::string told;
    for (const std::string& notice : turn.notices)
        told.append(told.empty() ? "" : gap).append(notice);
    return told.append(told.empty() || text.empty() ? "" : gap).append(text);
}

std::string FinishBeforeReading(const Disk& disk) {
    const auto journal = disk.folders.EmporiumFolder() / JournalName;
    if (disk.files.status(journal).kind == FileStatus::Kind::Absent)
        return {};
    const WriteTurn turn = TakeTurn(disk);
    return turn.refusal.empty() ? AfterTurn(turn, "")
                                : std::string("Ein früherer Schreibvorgang ist noch nicht beendet; "
                                              "was ihr seht, kann veraltet sein."_ansi);
}

std::string StillToCome(const FileFailure& failure) {
    return FailureText("Die Änderung gilt, aber eine Datei konnte noch nicht geschrieben werden. "
                       "Das wird beim nächsten Speichern oder beim nächsten Start nachgeholt; bis "
                       "dahin wird nichts anderes geschrieben."_ansi,
                       failure);
}

} // namespace emporium
