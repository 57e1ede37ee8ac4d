#include "base/FileWriting.h"

#include "base/Ansi.h"
#include "base/Journal.h"

#include <array>

namespace emporium {

namespace fs = std::filesystem;

namespace {

constexpr const char* TemporaryEnding = ".orvan-neu";

// A change on its way: where it goes in the end, and the file beside that which holds it until
// then.
struct Step {
    fs::path target;
    fs::path temporary; // empty for a removal
    FileText before;
    fs::perms mode = fs::perms::unknown; // before, too
};

// Where a path leads in the end, so that a link stays a link.
fs::path FollowLinks(fs::path file) {
    constexpr int limit = 40;
    std::error_code error;
    for (int i = 0; i < limit && fs::is_symlink(fs::symlink_status(file, error)); ++i)
        file = file.parent_path() / fs::read_symlink(file, error);
    return file;
}

// A rename would replace a write-protected file as well, so it is asked for before.
std::error_code CheckWritable(const fs::path& file) {
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (!fs::exists(status))
        return {};
    if (fs::is_directory(status))
        return std::make_error_code(std::errc::is_a_directory);
    if ((status.permissions() & fs::perms::owner_write) == fs::perms::none)
        return std::make_error_code(std::errc::permission_denied);
    return {};
}

std::error_code WriteAll(const FileLayer& files, FileLayer::Handle handle, std::string_view bytes) {
    while (!bytes.empty()) {
        std::size_t written = 0;
        if (const auto error = files.write(handle, bytes, written))
            return error;
        if (written == 0)
            return std::make_error_code(std::errc::io_error);
        bytes.remove_prefix(written);
    }
    return files.flush(handle);
}

std::error_code CreateTemporary(const FileLayer& files, const fs::path& target, fs::path& temporary,
                                FileLayer::Handle& handle) {
    constexpr int limit = 100;
    std::error_code error;
    for (int i = 0; i < limit; ++i) {
        temporary = target;
        temporary += TemporaryEnding + std::to_string(i);
        error = files.createNew(temporary, handle);
        if (error != std::errc::file_exists)
            break;
    }
    return error;
}

// Writes the contents beside the target. On failure nothing is left.
std::error_code WriteTemporary(const FileLayer& files, const fs::path& target,
                               std::string_view contents, bool replaces, fs::path& temporary) {
    FileLayer::Handle handle = 0;
    if (const auto error = CreateTemporary(files, target, temporary, handle))
        return error;
    std::error_code error = WriteAll(files, handle, contents);
    const std::error_code closing = files.close(handle);
    if (!error)
        error = closing;
    if (!error && replaces)
        error = files.copyMode(target, temporary);
    if (error)
        files.remove(temporary);
    return error;
}

void RemoveTemporaries(const FileLayer& files, const std::vector<Step>& steps) {
    for (const Step& step : steps)
        if (!step.temporary.empty())
            files.remove(step.temporary);
}

std::optional<FileFailure> Prepare(const FileLayer& files, const std::vector<FileChange>& changes,
                                   std::vector<Step>& steps) {
    for (const FileChange& change : changes) {
        Step step{FollowLinks(change.file), {}, {}};
        std::error_code ignored;
        std::error_code error = CheckWritable(step.target);
        if (!error && changes.size() > 1) {
            step.before = files.read(step.target);
            step.mode = fs::status(step.target, ignored).permissions();
            error = step.before.reason;
        }
        if (!error && change.contents)
            error = WriteTemporary(files, step.target, *change.contents,
                                   fs::exists(step.target, ignored), step.temporary);
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

std::optional<FileFailure> FlushFolders(const FileLayer& files, const std::vector<Step>& steps) {
    fs::path flushed;
    for (const Step& step : steps) {
        const fs::path folder = step.target.parent_path();
        if (folder == flushed)
            continue;
        if (const auto error = files.flushFolder(folder))
            return FileFailure{step.target, error};
        flushed = folder;
    }
    return std::nullopt;
}

void Restore(const FileLayer& files, const Step& step) {
    if (!step.before.IsWhole()) {
        files.remove(step.target);
        return;
    }
    WriteFile(files, step.target, step.before.bytes);
    std::error_code ignored;
    fs::permissions(step.target, step.mode, ignored);
}

std::optional<FileFailure> ApplyAll(const FileLayer& files, const fs::path& journal,
                                    const std::vector<Step>& steps) {
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const auto error = Apply(files, steps[i]);
        if (!error)
            continue;
        files.remove(journal);
        for (std::size_t done = 0; done < i; ++done)
            Restore(files, steps[done]);
        RemoveTemporaries(files, steps);
        return FileFailure{steps[i].target, error};
    }
    return std::nullopt;
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

std::optional<FileFailure> WriteSingle(const FileLayer& files, const std::vector<Step>& steps) {
    if (const auto error = Apply(files, steps.front())) {
        RemoveTemporaries(files, steps);
        return FileFailure{steps.front().target, error};
    }
    // The new contents stand and are complete; that their name may reach the disk a little later
    // is no reason to tell the user that nothing was written.
    FlushFolders(files, steps);
    return std::nullopt;
}

bool HasTemporaryEnding(const fs::path& file) {
    const fs::path ending = file.extension();
    return ending.string().rfind(TemporaryEnding, 0) == 0;
}

std::error_code FinishStep(const FileLayer& files, const fs::path& folder,
                           const JournalEntry& entry) {
    const fs::path target = folder / entry.target;
    if (entry.temporary.empty())
        return files.remove(target);
    const FileText text = files.read(folder / entry.temporary);
    if (text.state == FileText::State::Absent)
        return {}; // renamed already
    if (!text.IsWhole())
        return text.reason;
    if (text.bytes.size() != entry.length || Checksum(text.bytes) != entry.checksum)
        return std::make_error_code(std::errc::io_error);
    return files.rename(folder / entry.temporary, target);
}

std::optional<FileFailure> RemoveStrays(const FileLayer& files, const fs::path& folder) {
    std::error_code error;
    std::vector<fs::path> strays;
    for (const auto& entry : fs::directory_iterator(folder, error))
        if (HasTemporaryEnding(entry.path()))
            strays.push_back(entry.path());
    for (const fs::path& stray : strays)
        if (const auto failed = files.remove(stray))
            return FileFailure{stray, failed};
    return std::nullopt;
}

} // namespace

std::optional<FileFailure> WriteFiles(const FileLayer& files, const fs::path& journalFolder,
                                      const std::vector<FileChange>& changes) {
    std::vector<Step> steps;
    if (auto failure = Prepare(files, changes, steps)) {
        RemoveTemporaries(files, steps);
        return failure;
    }
    if (steps.size() == 1)
        return WriteSingle(files, steps);

    const fs::path journal = journalFolder / JournalName;
    const std::string text = JournalText(DescribeSteps(journalFolder, changes, steps));
    auto failure = WriteFile(files, journal, text);
    if (failure) {
        files.remove(journal);
        RemoveTemporaries(files, steps);
        return failure;
    }
    failure = ApplyAll(files, journal, steps);
    if (!failure && !FlushFolders(files, steps))
        files.remove(journal); // one that stays is finished, without effect, by the next start
    return failure;
}

std::optional<FileFailure> WriteFile(const FileLayer& files, const fs::path& file,
                                     std::string contents) {
    return WriteFiles(files, {}, {{file, std::move(contents)}});
}

std::optional<FileFailure> FinishInterruptedWrites(const FileLayer& files, const fs::path& folder) {
    const fs::path journalFile = folder / JournalName;
    const FileText text = files.read(journalFile);
    if (text.state == FileText::State::Unreadable)
        return FileFailure{journalFile, text.reason};
    if (const auto journal = ReadJournal(text.bytes)) {
        for (const JournalEntry& entry : *journal)
            if (const auto error = FinishStep(files, folder, entry))
                return FileFailure{folder / entry.target, error};
        files.flushFolder(folder);
    }
    if (text.IsWhole())
        if (const auto error = files.remove(journalFile))
            return FileFailure{journalFile, error};
    return RemoveStrays(files, folder);
}

std::string ReasonText(const std::error_code& reason) {
    if (!reason)
        return "Die Datei ist leer.";
    struct Known {
        std::errc code;
        std::string_view text;
    };
    static constexpr std::array<Known, 12> known = {{
        {std::errc::no_space_on_device, "Auf dem Datenträger ist kein Platz mehr."_ansi},
        {std::errc::permission_denied, "Der Zugriff wurde verweigert oder die Datei ist "
                                       "schreibgeschützt."_ansi},
        {std::errc::operation_not_permitted, "Der Zugriff wurde verweigert."},
        {std::errc::read_only_file_system, "Der Datenträger ist schreibgeschützt."_ansi},
        {std::errc::io_error, "Beim Lesen oder Schreiben ist ein Fehler aufgetreten."},
        {std::errc::too_many_files_open, "Es sind zu viele Dateien geöffnet."_ansi},
        {std::errc::no_such_file_or_directory, "Die Datei oder ihr Ordner fehlt."},
        {std::errc::not_a_directory, "Die Datei oder ihr Ordner fehlt."},
        {std::errc::is_a_directory, "An dieser Stelle liegt ein Ordner."},
        {std::errc::filename_too_long, "Der Name ist zu lang."},
        {std::errc::file_too_large, "Die Datei ist zu groß."_ansi},
        {std::errc::invalid_argument, "Diesen Namen kann keine Datei tragen."},
    }};
    for (const Known& entry : known)
        if (reason == entry.code)
            return std::string(entry.text);
    return "Das System meldet den Fehler " + std::to_string(reason.value()) + ".";
}

std::string FailureText(std::string_view what, const FileFailure& failure) {
    return std::string(what) + "\n\nDatei: " + FromPath(failure.file) +
           "\nGrund: " + ReasonText(failure.reason);
}

} // namespace emporium
