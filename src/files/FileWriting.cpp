#include "files/FileWriting.h"

#include "files/Journal.h"
#include "files/Links.h"
#include "files/Temporaries.h"

#include <algorithm>
#include <span>

namespace emporium {

namespace fs = std::filesystem;

namespace {

// A change on its way: where it goes in the end, and the file beside that which holds it until
// then.
struct Step {
    fs::path target;
    fs::path temporary;                // empty for a removal
    std::optional<Fingerprint> before; // for the journal, if there is more than one step
};

// A rename would replace a link or a write-protected file as well, so it is asked for before.
std::error_code CheckWritable(const FileStatus& status) {
    switch (status.kind) {
    case FileStatus::Kind::Absent:
        return status.reason;
    case FileStatus::Kind::File:
        return status.writable ? std::error_code()
                               : std::make_error_code(std::errc::permission_denied);
    case FileStatus::Kind::Folder:
        return std::make_error_code(std::errc::is_a_directory);
    default:
        return std::make_error_code(std::errc::operation_not_supported);
    }
}

void RemoveTemporaries(const FileLayer& files, const std::vector<Step>& steps) {
    for (const Step& step : steps)
        if (!step.temporary.empty())
            files.remove(step.temporary);
}

// Two changes of one file would leave only the later one's contents.
std::error_code CheckDistinct(const FileLayer& files, const std::vector<Step>& earlier,
                              const fs::path& target) {
    const bool again = std::any_of(earlier.begin(), earlier.end(), [&](const Step& step) {
        return step.target == target || files.sameFile(step.target, target);
    });
    return again ? std::make_error_code(std::errc::too_many_links) : std::error_code();
}

std::error_code NoteBefore(const FileLayer& files, Step& step) {
    const FileText text = files.read(step.target, LargestFile);
    if (text.IsWhole())
        step.before = FingerprintOf(text.bytes);
    return text.reason;
}

std::error_code PrepareStep(const FileLayer& files, const FileChange& change, bool bound,
                            const std::vector<Step>& earlier, Step& step) {
    step.target = change.file;
    const FileStatus status = files.status(step.target);
    std::error_code error = CheckWritable(status);
    if (!error)
        error = CheckDistinct(files, earlier, step.target);
    if (!error && bound)
        error = NoteBefore(files, step);
    if (!error && change.contents)
        error = WriteTemporary(files, step.target, *change.contents,
                               status.kind == FileStatus::Kind::File, step.temporary);
    return error;
}

std::optional<FileFailure> Prepare(const FileLayer& files, std::span<const FileChange> changes,
                                   std::vector<Step>& steps) {
    for (const FileChange& change : changes) {
        Step step;
        if (const auto error = PrepareStep(files, change, changes.size() > 1, steps, step)) {
            RemoveTemporaries(files, steps);
            return FileFailure{change.file, error};
        }
        steps.push_back(std::move(step));
    }
    return std::nullopt;
}

// That the names of complete contents may reach the disk a little later is no reason to tell the
// user that nothing was written.
WriteResult WriteSingle(const FileLayer& files, const FileChange& change) {
    std::vector<Step> steps;
    if (auto failure = Prepare(files, {&change, 1}, steps))
        return {false, failure};
    if (const auto error = PutInPlace(files, steps.front().temporary, steps.front().target)) {
        RemoveTemporaries(files, steps);
        return {false, FileFailure{change.file, error}};
    }
    files.flushFolder(change.file.parent_path());
    return {true, std::nullopt};
}

Journal DescribeSteps(const std::vector<FileChange>& changes, const std::vector<Step>& steps) {
    Journal journal;
    for (std::size_t i = 0; i < steps.size(); ++i)
        journal.push_back({steps[i].target.filename(), steps[i].temporary.filename(),
                           steps[i].before, FingerprintOf(changes[i].contents.value_or(""))});
    return journal;
}

// Before the first rename the announcement has to be on the disk, name and contents: renames that
// outlive it at a power cut would be half a change.
std::optional<FileFailure> Announce(const FileLayer& files, const fs::path& journal,
                                    std::string text) {
    const WriteResult written = WriteSingle(files, {journal, std::move(text)});
    if (!written.stands)
        return written.failure;
    const auto error = files.flushFolder(journal.parent_path());
    const bool dropped = error && !files.remove(journal);
    return dropped ? std::optional(FileFailure{journal, error}) : std::nullopt;
}

// From the journal's rename on the changes are promised; a journal that stays after they are all
// made has no effect, for what it announces is found to be done.
WriteResult WriteBound(const FileLayer& files, const fs::path& folder,
                       const std::vector<FileChange>& changes) {
    std::vector<Step> steps;
    if (auto failure = Prepare(files, changes, steps))
        return {false, failure};
    const fs::path journal = folder / JournalName;
    if (auto failure = Announce(files, journal, JournalText(DescribeSteps(changes, steps)))) {
        RemoveTemporaries(files, steps);
        return {false, failure};
    }
    for (const Step& step : steps)
        if (const auto error = PutInPlace(files, step.temporary, step.target))
            return {true, FileFailure{step.target, error}};
    if (!files.flushFolder(folder))
        files.remove(journal);
    return {true, std::nullopt};
}

std::error_code WriteBeside(const FileLayer& files, const fs::path& target,
                            std::string_view contents, bool replaces) {
    fs::path temporary;
    if (const auto error = WriteTemporary(files, target, contents, replaces, temporary))
        return error;
    const auto error = files.rename(temporary, target);
    if (error)
        files.remove(temporary);
    else
        files.flushFolder(target.parent_path());
    return error;
}

std::error_code OverwriteWith(const FileLayer& files, const fs::path& target,
                              std::string_view contents) {
    FileLayer::Handle handle = 0;
    const std::error_code error = files.overwrite(target, handle);
    return error ? error : WriteAndClose(files, handle, contents);
}

// What the file held is put back if there is no room for what it should hold.
std::error_code WriteInPlace(const FileLayer& files, const fs::path& target,
                             std::string_view contents) {
    const FileText before = files.read(target, LargestFile);
    const std::error_code error = OverwriteWith(files, target, contents);
    if (error && before.IsWhole())
        static_cast<void>(OverwriteWith(files, target, before.bytes));
    return error;
}

bool IsRefusal(const std::error_code& error) {
    return error == std::errc::permission_denied || error == std::errc::operation_not_permitted;
}

} // namespace

WriteResult WriteFiles(const FileLayer& files, const fs::path& folder,
                       const std::vector<FileChange>& changes) {
    const fs::path journal = folder / JournalName;
    if (files.status(journal).kind != FileStatus::Kind::Absent)
        return {false,
                FileFailure{journal, std::make_error_code(std::errc::device_or_resource_busy)}};
    return changes.size() == 1 ? WriteSingle(files, changes.front())
                               : WriteBound(files, folder, changes);
}

std::optional<FileFailure> WriteDocument(const FileLayer& files, const fs::path& file,
                                         std::string_view contents) {
    std::error_code error;
    const fs::path target = FollowLinks(files, file, error);
    const FileStatus status = files.status(target);
    const bool replaces = status.kind == FileStatus::Kind::File;
    if (!error)
        error = CheckWritable(status);
    if (!error) {
        error = WriteBeside(files, target, contents, replaces);
        if (replaces && IsRefusal(error)) // by the folder, since the file may be written
            error = WriteInPlace(files, target, contents);
    }
    return error ? std::optional(FileFailure{file, error}) : std::nullopt;
}

} // namespace emporium
