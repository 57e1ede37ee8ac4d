#include "frame/StartUp.h"

#include "base/Variablen.h"
#include "files/Links.h"
#include "files/Temporaries.h"
#include "frame/Version.h"
#include "itemeditor/CategoryDropDowns.h"
#include "store/ArsenalImport.h"
#include "store/CategoryRenaming.h"
#include "store/WriteTurn.h"

#include <utility>

namespace emporium {

namespace {

std::string Caption() {
    return std::string(ProgramTitle) + " v" + std::to_string(VersionMajor) + "." +
           std::to_string(VersionMinor) + std::to_string(VersionRevision) +
           " - Die Velmar Tuchhalle";
}

bool AskDespiteOtherCopy(const Platform& platform) {
    return platform.AskYesNo(
        {std::string("Orvan-Emporium 3 läuft schon und benutzt dieselben Daten. Was ihr in einem "
                     "der Fenster ändert, zeigt das andere erst, wenn ihr dort die Kategorie noch "
                     "einmal wählt.\n\nWollt ihr trotzdem weitermachen?"_ansi),
         BoxIcon::Warning});
}

constexpr std::string_view NoChanges =
    "Das Programm kann in seinen Ordner nicht schreiben. Ihr könnt nachschlagen und Läden "
    "zusammenstellen, aber keine Gegenstände ändern und nichts drucken.\n\n"
    "Kopiert den ganzen Ordner an einen Ort, an dem ihr schreiben dürft, etwa in eure "
    "Dokumente, und startet das Programm von dort."_ansi;
constexpr std::string_view NoPrinting =
    "Das Programm kann in den Ordner Temp nicht schreiben, deshalb könnt ihr nichts drucken. "
    "Einen Laden könnt ihr exportieren und aus dem Browser drucken."_ansi;

// Told at the start, before a save or a print fails. Empty if nothing stands in the way of writing.
std::string NoWritingText(const Platform& platform, const std::filesystem::path& folder,
                          std::string_view consequence) {
    const auto failure = TryWriting(platform.disk.files, folder);
    return failure ? FailureText(consequence, *failure) : std::string();
}

// A program started within an archive stands there alone. Empty if its data are there.
std::string NoDataText(const Disk& disk) {
    const FileStatus status = StatusBehindLinks(disk.files, disk.folders.EmporiumFolder());
    if (status.kind == FileStatus::Kind::Folder || status.reason)
        return {};
    return std::string(
               "Neben dem Programm fehlt der Ordner Data. Habt ihr das Archiv noch nicht "
               "entpackt, so entpackt es zuerst ganz und startet das Programm im entpackten "
               "Ordner. Wollt ihr es an einen anderen Ort bringen, so kopiert immer den ganzen "
               "Ordner.\n\nGesucht wurde: "_ansi) +
           FromPath(disk.folders.EmporiumFolder());
}

// While an interrupted write can't be finished, nothing is written on top of it, and a box has to
// tell that; else the text is empty.
std::string BringUpToDate(const Disk& disk, std::vector<std::string>& faults) {
    Outcome outcome = InTurn(disk, [&]() -> Outcome {
        if (const auto failure = RemoveStrays(disk.files, disk.folders.EmporiumFolder()))
            faults.push_back(FaultLine(*failure));
        // Half a page that stays because it can't be removed does no harm. What lies with the
        // exports is the user's, whatever its name.
        static_cast<void>(RemoveStrays(disk.files, disk.folders.TempFolder));
        RenameOldCategoryFiles(disk, faults);
        ImportArsenal(disk, faults);
        return {true, {}};
    });
    if (outcome.stands && !outcome.text.empty())
        faults.insert(faults.begin(), std::exchange(outcome.text, {}));
    return std::move(outcome.text);
}

} // namespace

bool StartUp(frmEmporiumMain& window, const Platform& platform) {
    std::vector<std::string> faults;
    const Folders& folders = platform.disk.folders;
    window.claim = platform.disk.files.claim(folders.EmporiumFolder());
    if (window.claim.takenElsewhere && !AskDespiteOtherCopy(platform))
        return false;
    std::string notice = NoDataText(platform.disk);
    const bool hasData = notice.empty();
    if (hasData)
        notice = NoWritingText(platform, folders.EmporiumFolder(), NoChanges);
    // What another copy is just writing looks like something to be finished.
    if (notice.empty() && !window.claim.takenElsewhere)
        notice = BringUpToDate(platform.disk, faults);
    if (notice.empty())
        notice = NoWritingText(platform, folders.TempFolder, NoPrinting);
    ReadCategoryList(window.items, platform.disk, faults);
    window.caption = Caption();
    if (hasData && !faults.empty())
        notice += (notice.empty() ? "" : "\n\n") + FaultsText(faults);
    if (!notice.empty())
        platform.ShowMessage(notice);
    return true;
}

} // namespace emporium
