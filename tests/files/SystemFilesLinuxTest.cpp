// The real disk, which the one in memory stands in for: what only Linux has, and a process that
// ends.
#include "base/Subs.h"
#include "files/FileWriting.h"
#include "files/Recovery.h"
#include "files/Temporaries.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/wait.h>

namespace emporium::test {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> EntriesIn(const fs::path& folder) {
    std::vector<fs::path> found;
    EXPECT_FALSE(SystemFiles().entries(folder, found));
    return found;
}

TEST(SystemFiles, TellsWhatStandsThereAndReadsNothingButFiles) {
    const ProgramFolder program;
    const FileLayer files = SystemFiles();
    const fs::path folder = program.folders.EmporiumFolder();
    program.Write("Emporium/a.dat", "a");
    fs::create_symlink("a.dat", folder / "link.dat");
    fs::create_symlink("ring.dat", folder / "ring.dat");
    fs::create_hard_link(folder / "a.dat", folder / "zwei.dat");
    ::mkfifo((folder / "pipe.dat").c_str(), 0600);
    using Kind = FileStatus::Kind;
    const std::pair<std::string, Kind> kinds[] = {
        {"a.dat", Kind::File},     {"link.dat", Kind::Link},  {".", Kind::Folder},
        {"pipe.dat", Kind::Other}, {"a.dat/x", Kind::Absent}, {std::string(300, 'x'), Kind::Absent},
        {"fehlt", Kind::Absent}};
    for (const auto& [name, kind] : kinds) {
        const FileStatus status = files.status(folder / name);
        EXPECT_TRUE(status.kind == kind && !status.reason) << name;
        const FileText text = files.read(folder / name, 1);
        EXPECT_EQ(text.bytes, kind == Kind::File || kind == Kind::Link ? "a" : "") << name;
        EXPECT_EQ(text.state == FileText::State::Absent, kind == Kind::Absent) << name;
        EXPECT_EQ(!text.reason, kind != Kind::Folder && kind != Kind::Other) << name;
    }
    EXPECT_EQ(files.read(folder / "ring.dat", 1).state, FileText::State::Absent);
    EXPECT_EQ(files.read("/proc/self/mem", LargestFile).reason, std::errc::io_error);
    const char* const sizeless = "/proc/filesystems";
    EXPECT_TRUE(files.read(sizeless, LargestFile).bytes.ends_with("\n"));
    for (const fs::path& file : {fs::path(sizeless), folder / "a.dat"})
        EXPECT_EQ(files.read(file, 0).reason, std::errc::file_too_large);
    EXPECT_TRUE(FileExists(files, folder / "l*.dat"));
    EXPECT_FALSE(FileExists(files, folder / "ring.dat"));
    fs::permissions(folder / "a.dat", fs::perms::owner_read);
    EXPECT_FALSE(files.status(folder / "a.dat").writable);
    EXPECT_FALSE(WriteFiles(files, folder, {{folder / "a.dat", "neu"}}).stands);
    fs::permissions(folder / "a.dat", fs::perms::owner_all);
    EXPECT_FALSE(
        WriteFiles(files, folder, {{folder / "a.dat", "1"}, {folder / "zwei.dat", "2"}}).stands);
    EXPECT_TRUE(
        WriteFiles(files, folder, {{folder / "a.dat", "neu"}, {folder / "b.dat", "b"}}).stands);
    EXPECT_EQ(program.Read("Emporium/a.dat"), "neu");
    EXPECT_EQ(fs::status(folder / "a.dat").permissions(), fs::perms::owner_all);
    EXPECT_EQ(EntriesIn(folder).size(), 6U);
    fs::permissions(folder / "a.dat", fs::perms::none);
    const bool mayAll = ::seteuid(65534) == 0; // then as one who may not
    EXPECT_EQ(files.read(folder / "a.dat", 1).reason, std::errc::permission_denied);
    EXPECT_FALSE(files.status("/etc/passwd").writable);
    EXPECT_TRUE(!mayAll || ::seteuid(0) == 0);
    EXPECT_TRUE(
        files.sameFile(RunningProgramFolder() / program_invocation_short_name, "/proc/self/exe"));
}

TEST(SystemFiles, TellsWhatACallCameTo) {
    const ProgramFolder program;
    const FileLayer files = SystemFiles();
    const fs::path folder = program.folders.EmporiumFolder();
    const fs::path file = folder / "a.dat";
    const fs::path nowhere = folder / "fehlt" / "a.dat";
    program.Write("Emporium/a.dat", "lang");
    const auto open = EntriesIn("/proc/self/fd");
    FileLayer::Handle handle = 0;
    std::size_t written = 0;
    std::shared_ptr<void> lock;
    std::vector<fs::path> none;
    const std::pair<std::error_code, std::errc> calls[] = {
        {files.createNew(file, handle), std::errc::file_exists},
        {files.overwrite(folder, handle), std::errc::is_a_directory},
        {files.write(-1, "x", written), std::errc::bad_file_descriptor},
        {files.close(-1), std::errc::bad_file_descriptor},
        {files.overwrite("/dev/full", handle), {}},
        {files.write(handle, "x", written), std::errc::no_space_on_device},
        {files.close(handle), {}},
        {files.overwrite(file, handle), {}},
        {files.write(handle, "neu", written), {}},
        {files.close(handle), {}},
        {files.rename(file, nowhere), std::errc::no_such_file_or_directory},
        {files.remove(folder), std::errc::is_a_directory},
        {files.remove(nowhere), {}},
        {files.flushFolder(nowhere), std::errc::no_such_file_or_directory},
        {files.flushFolder("/proc"), {}}, // knows no flushing
        {files.createFolder(folder), {}},
        {files.entries(nowhere, none), std::errc::no_such_file_or_directory},
        {files.lock(nowhere, lock), std::errc::no_such_file_or_directory},
        {files.lock(folder, lock), {}}};
    for (const auto& [error, expected] : calls)
        EXPECT_EQ(error, expected) << error.message();
    lock.reset();
    EXPECT_EQ(EntriesIn("/proc/self/fd"), open);
    EXPECT_EQ(program.Read("Emporium/a.dat"), "neu");
}

// The system's own calls, in a process that really ends.
TEST(SystemFiles, AProcessMayEndInAnyCall) {
    bool ended = true;
    for (int n = 1; ended; ++n) {
        const ProgramFolder program;
        const fs::path folder = program.folders.EmporiumFolder();
        program.Write("Emporium/a.dat", "alt a");
        if (::fork() == 0) {
            FileLayer files = SystemFiles();
            int calls = 0;
            const auto guard = [&](auto& call) {
                call = [real = call, &calls, n](auto&&... arguments) {
                    if (++calls == n)
                        ::_exit(1);
                    return real(arguments...);
                };
            };
            guard(files.createNew), guard(files.write), guard(files.flush), guard(files.rename);
            guard(files.remove), guard(files.flushFolder), guard(files.close);
            const auto b = folder / "b.dat";
            ::_exit(WriteFiles(files, folder, {{folder / "a.dat", "neu"}, {b, "b"}}).stands ? 0
                                                                                            : 2);
        }
        int status = 0;
        ::wait(&status);
        ended = WEXITSTATUS(status) == 1;
        EXPECT_FALSE(FinishJournal(SystemFiles(), folder).failure);
        EXPECT_FALSE(RemoveStrays(SystemFiles(), folder));
        const bool isNew = program.Read("Emporium/a.dat") == "neu";
        EXPECT_TRUE(isNew || ended);
        EXPECT_EQ(program.Read("Emporium/b.dat"), isNew ? "b" : "(absent)") << n;
        EXPECT_EQ(EntriesIn(folder).size(), isNew ? 2U : 1U) << n;
    }
}

} // namespace
} // namespace emporium::test
