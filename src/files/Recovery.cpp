#include "files/Recovery.h"

#include "files/Journal.h"
#include "files/Temporaries.h"
#include "text/Ansi.h"

#include <algorithm>

namespace emporium {

namespace fs = std::filesystem;

namespace {

// How far an entry has come. Lost: nothing holds what was announced. Foreign: the target is
// somebody's later work.
enum class Progress { Pending, Done, Lost, Foreign };

struct FoundStep {
    fs::path target;
    fs::path temporary; // empty for a removal
    Progress progress = Progress::Pending;
};

bool Holds(const FileText& text, const std::optional<Fingerprint>& print) {
    return print ? text.IsWhole() && FingerprintOf(text.bytes) == *print
                 : text.state == FileText::State::Absent;
}

std::error_code FindStep(const FileLayer& files, const JournalEntry& entry, FoundStep& found) {
    const bool removes = entry.temporary.empty();
    const FileStatus status = files.status(found.target);
    if (status.kind != FileStatus::Kind::Absent && status.kind != FileStatus::Kind::File) {
        found.progress = Progress::Foreign; // a link, say, that must not be written through
        return {};
    }
    const FileText target = files.read(found.target, LargestFile);
    if (target.reason)
        return target.reason;
    if (Holds(target, removes ? std::nullopt : std::optional(entry.after)))
        found.progress = Progress::Done;
    else if (!Holds(target, entry.before))
        found.progress = Progress::Foreign;
    if (removes || found.progress != Progress::Pending)
        return {};
    const FileText temporary = files.read(found.temporary, LargestFile);
    if (!temporary.reason && !Holds(temporary, entry.after))
        found.progress = Progress::Lost;
    return temporary.reason;
}

std::optional<FileFailure> FindSteps(const FileLayer& files, const fs::path& folder,
                                     const Journal& journal, std::vector<FoundStep>& steps) {
    for (const JournalEntry& entry : journal) {
        FoundStep& step = steps.emplace_back();
        step.target = folder / entry.target;
        if (!entry.temporary.empty())
            step.temporary = folder / entry.temporary;
        if (const auto error = FindStep(files, entry, step))
            return FileFailure{step.target, error};
    }
    return std::nullopt;
}

std::string ForeignNotice(const fs::path& file) {
    return FromPath(file.filename()) +
           std::string(": Die Datei wurde geändert, nachdem ein Schreibvorgang unterbrochen worden "
                       "war. Sie bleibt, wie sie ist. Ein Gegenstand kann deshalb in zwei "
                       "Kategorien stehen, oder Liste und Dateien der Kategorien passen nicht "
                       "zusammen."_ansi);
}

// The journal keeps its contents under another name, which no start looks at.
Recovery SetAside(const FileLayer& files, const fs::path& journal, std::string_view why) {
    fs::path aside = journal;
    aside += "-beiseite";
    if (const auto error = files.rename(journal, aside))
        return {FileFailure{journal, error}, {}};
    return {std::nullopt,
            {FromPath(journal.filename()) + ": " + std::string(why) +
             std::string(" Er wurde nicht ausgeführt und heißt jetzt "_ansi) +
             FromPath(aside.filename()) + "."}};
}

void RemoveTemporary(const FileLayer& files, const FoundStep& step) {
    if (!step.temporary.empty())
        files.remove(step.temporary);
}

// The announcement has to be on the disk before the first step, and the program may have ended
// before it was. A step follows only where those before it stand: a removal could take the last
// copy of a record.
Recovery Carry(const FileLayer& files, const fs::path& folder,
               const std::vector<FoundStep>& steps) {
    if (const auto error = files.flushFolder(folder))
        return {FileFailure{folder, error}, {}};
    Recovery recovery;
    for (const FoundStep& step : steps) {
        if (step.progress == Progress::Foreign)
            recovery.notices.push_back(ForeignNotice(step.target));
        if (!recovery.notices.empty() || step.progress == Progress::Done)
            RemoveTemporary(files, step);
        else if (const auto error = PutInPlace(files, step.temporary, step.target))
            return {FileFailure{step.target, error}, {}};
    }
    if (const auto error = files.flushFolder(folder))
        return {FileFailure{folder, error}, {}};
    return recovery;
}

} // namespace

Recovery FinishJournal(const FileLayer& files, const fs::path& folder) {
    const fs::path journalFile = folder / JournalName;
    const FileStatus status = files.status(journalFile);
    if (status.reason)
        return {FileFailure{journalFile, status.reason}, {}};
    if (status.kind == FileStatus::Kind::Absent)
        return {};
    if (status.kind != FileStatus::Kind::File)
        return SetAside(files, journalFile, "Der angefangene Schreibvorgang ist keine Datei."_ansi);
    const FileText text = files.read(journalFile, LargestList);
    if (text.reason && text.reason != std::errc::file_too_large)
        return {FileFailure{journalFile, text.reason}, {}};
    const auto journal = ReadJournal(text.bytes);
    if (!journal)
        return SetAside(files, journalFile,
                        "Der angefangene Schreibvorgang ist beschädigt, oder er nennt Dateien, die "
                        "nicht in diesen Ordner gehören."_ansi);
    std::vector<FoundStep> steps;
    if (auto failure = FindSteps(files, folder, *journal, steps))
        return {failure, {}};
    if (std::any_of(steps.begin(), steps.end(),
                    [](const FoundStep& step) { return step.progress == Progress::Lost; }))
        return SetAside(files, journalFile,
                        "Vom angefangenen Schreibvorgang fehlen die neuen Inhalte."_ansi);
    Recovery recovery = Carry(files, folder, steps);
    if (!recovery.failure)
        if (const auto error = files.remove(journalFile))
            recovery.failure = FileFailure{journalFile, error};
    return recovery;
}

} // namespace emporium
