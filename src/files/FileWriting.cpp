#include "files/FileWriting.h"

#include "files/Journal.h"
#include "files/Temporaries.h"

#include <algorithm>

namespace emporium {

namespace fs = std::filesystem;

namespace {

// A change on its way: where it goes in the end, and the file beside that which holds it until
// then.
struct Step {
    fs::path target;
    fs::path temporary; // empty for a removal
    FileText before;    // for the way back, if there is more than one step
};

// A rename would replace a write-protected file as well, so it is asked for before.
std::error_code CheckWritable(const fs::path& file, bool& exists) {
    std::error_code error;
    const fs::file_status status = StatusOf(file, error);
    if (error)
        return error;
    exists = fs::exists(status);
    if (!exists)
        return {};
    if (fs::is_directory(status))
        return std::make_error_code(std::errc::is_a_directory);
    if ((status.permissions() & fs::perms::owner_write) == fs::perms::none)
        return std::make_error_code(std::errc::permission_denied);
    return {};
}

void RemoveTemporaries(const FileLayer& files, const std::vector<Step>& steps) {
    for (const Step& step : steps)
        if (!step.temporary.empty())
            files.remove(step.temporary);
}

// Two changes of one file would leave only the later one's contents.
std::error_code CheckDistinct(const std::vector<Step>& earlier, const fs::path& target) {
    const bool again = std::any_of(earlier.begin(), earlier.end(), [&target](const Step& step) {
        std::error_code absent;
        return fs::equivalent(step.target, target, absent);
    });
    return again ? std::make_error_code(std::errc::too_many_links) : std::error_code();
}

std::optional<FileFailure> Prepare(const FileLayer& files, const std::vector<FileChange>& changes,
                                   std::vector<Step>& steps) {
    for (const FileChange& change : changes) {
        std::error_code error;
        Step step{FollowLinks(change.file, error), {}, {}};
        bool exists = false;
        if (!error)
            error = CheckWritable(step.target, exists);
        if (!error)
            error = CheckDistinct(steps, step.target);
        if (!error && changes.size() > 1) {
            step.before = files.read(step.target);
            error = step.before.reason;
        }
        if (!error && change.contents)
            error = WriteTemporary(files, step.target, *change.contents, exists, step.temporary);
        if (error)
            return FileFailure{change.file, error};
        steps.push_back(std::move(step));
    }
    return std::nullopt;
}

std::error_code Apply(const FileLayer& files, const Step& step) {
    return step.temporary.empty() ? files.remove(step.target)
                                  : files.rename(step.temporary, step.target);
}

std::error_code FlushFolders(const FileLayer& files, const std::vector<Step>& steps) {
    fs::path flushed;
    for (const Step& step : steps) {
        const fs::path folder = step.target.parent_path();
        if (folder == flushed)
            continue;
        if (const auto error = files.flushFolder(folder))
            return error;
        flushed = folder;
    }
    return {};
}

Journal DescribeSteps(const fs::path& folder, const std::vector<FileChange>& changes,
                      const std::vector<Step>& steps) {
    Journal journal;
    for (std::size_t i = 0; i < steps.size(); ++i) {
        // What a link has led out of the folder keeps its own path.
        const auto name = [&folder](const fs::path& file) {
            const fs::path relative = file.lexically_relative(folder);
            return relative.empty() || *relative.begin() == ".." ? file : relative;
        };
        const std::string& contents = changes[i].contents ? *changes[i].contents : std::string();
        journal.push_back(
            {name(steps[i].temporary), name(steps[i].target), contents.size(), Checksum(contents)});
    }
    return journal;
}

std::optional<FileFailure> WriteSingle(const FileLayer& files, const FileChange& change) {
    std::vector<Step> steps;
    if (auto failure = Prepare(files, {change}, steps))
        return failure;
    if (const auto error = Apply(files, steps.front())) {
        RemoveTemporaries(files, steps);
        return FileFailure{change.file, error};
    }
    // The new contents stand and are complete; that their name may reach the disk a little later
    // is no reason to tell the user that nothing was written.
    FlushFolders(files, steps);
    return std::nullopt;
}

std::optional<FileFailure> WriteBound(const FileLayer& files, const fs::path& journalFolder,
                                      std::vector<FileChange> changes);

// Takes the first `done` steps back. They are changes like others, bound by a journal that takes
// the place of the one that announced them: from then on recovery goes back, not forward. If that
// fails as well, the first journal stands, and FinishJournal carries it out later.
void TakeBack(const FileLayer& files, const fs::path& journalFolder, const std::vector<Step>& steps,
              std::size_t done) {
    if (done == 0) {
        if (!files.remove(journalFolder / JournalName))
            RemoveTemporaries(files, steps);
        return;
    }
    std::vector<FileChange> changes;
    for (std::size_t i = 0; i < done; ++i)
        changes.push_back({steps[i].target, steps[i].before.IsWhole()
                                                ? std::optional(steps[i].before.bytes)
                                                : std::nullopt});
    if (!WriteBound(files, journalFolder, std::move(changes)))
        RemoveTemporaries(files, steps);
}

std::optional<FileFailure> ApplyAll(const FileLayer& files, const fs::path& journalFolder,
                                    const std::vector<Step>& steps) {
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const auto error = Apply(files, steps[i]);
        if (!error)
            continue;
        TakeBack(files, journalFolder, steps, i);
        return FileFailure{steps[i].target, error};
    }
    return std::nullopt;
}

// Carries out the changes under a journal, which replaces one that stands. Removals come last, so
// that none has to be taken back for the sake of another file.
std::optional<FileFailure> WriteBound(const FileLayer& files, const fs::path& journalFolder,
                                      std::vector<FileChange> changes) {
    std::stable_partition(changes.begin(), changes.end(),
                          [](const FileChange& change) { return change.contents.has_value(); });
    std::vector<Step> steps;
    auto failure = Prepare(files, changes, steps);
    const fs::path journal = journalFolder / JournalName;
    if (!failure)
        failure =
            WriteFile(files, journal, JournalText(DescribeSteps(journalFolder, changes, steps)));
    if (failure) {
        RemoveTemporaries(files, steps);
        return failure;
    }
    failure = ApplyAll(files, journalFolder, steps);
    // A journal that stays has no effect: what it announces is found to be done.
    if (!failure && !FlushFolders(files, steps))
        files.remove(journal);
    return failure;
}

// How far a journal's entry has come. Lost: neither the temporary nor the target holds what was
// announced.
enum class Progress { Pending, Done, Lost };

struct FoundStep {
    Step step;
    Progress progress;
};

// What a removal has come to doesn't matter, it can be repeated.
std::error_code FindStep(const FileLayer& files, const fs::path& folder, const JournalEntry& entry,
                         FoundStep& found) {
    found = {{folder / entry.target, {}, {}}, Progress::Pending};
    if (entry.temporary.empty())
        return {};
    found.step.temporary = folder / entry.temporary;
    const auto isAnnounced = [&entry](const FileText& text) {
        return text.IsWhole() && text.bytes.size() == entry.length &&
               Checksum(text.bytes) == entry.checksum;
    };
    const FileText temporary = files.read(found.step.temporary);
    if (temporary.reason || isAnnounced(temporary))
        return temporary.reason;
    const FileText target = files.read(found.step.target);
    found.progress = isAnnounced(target) ? Progress::Done : Progress::Lost;
    return target.reason;
}

// Goes on with the steps that a journal announced. If the contents of one are lost, which takes
// more than a killed program, none of the others follows it: a removal could take the last copy of
// a record. Such a journal is `hopeless`.
std::optional<FileFailure> FinishSteps(const FileLayer& files, const fs::path& folder,
                                       const Journal& journal, bool& hopeless) {
    std::vector<FoundStep> steps(journal.size());
    for (std::size_t i = 0; i < journal.size(); ++i)
        if (const auto error = FindStep(files, folder, journal[i], steps[i]))
            return FileFailure{steps[i].step.target, error};
    for (const FoundStep& found : steps) {
        hopeless = found.progress == Progress::Lost;
        if (hopeless)
            return FileFailure{found.step.target, std::make_error_code(std::errc::io_error)};
    }
    for (const FoundStep& found : steps)
        if (found.progress == Progress::Pending)
            if (const auto error = Apply(files, found.step))
                return FileFailure{found.step.target, error};
    files.flushFolder(folder);
    return std::nullopt;
}

} // namespace

std::optional<FileFailure> WriteFiles(const FileLayer& files, const fs::path& journalFolder,
                                      const std::vector<FileChange>& changes) {
    return changes.size() == 1 ? WriteSingle(files, changes.front())
                               : WriteBound(files, journalFolder, changes);
}

std::optional<FileFailure> WriteFile(const FileLayer& files, const fs::path& file,
                                     std::string contents) {
    return WriteSingle(files, {file, std::move(contents)});
}

std::optional<FileFailure> FinishJournal(const FileLayer& files, const fs::path& folder) {
    const fs::path journalFile = folder / JournalName;
    const FileText text = files.read(journalFile);
    if (text.state == FileText::State::Absent)
        return std::nullopt;
    if (!text.IsWhole())
        return FileFailure{journalFile, text.reason};
    std::optional<FileFailure> failure;
    bool hopeless = false;
    if (const auto journal = ReadJournal(text.bytes))
        failure = FinishSteps(files, folder, *journal, hopeless);
    if (failure && !hopeless)
        return failure;
    if (const auto error = files.remove(journalFile))
        return FileFailure{journalFile, error};
    return failure;
}

std::optional<FileFailure> FinishInterruptedWrites(const FileLayer& files, const fs::path& folder) {
    auto failure = FinishJournal(files, folder);
    return failure ? failure : RemoveStrays(files, folder);
}

} // namespace emporium
