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

TEST(SystemFiles, TellsWhatStandsThereAndReadsNothingButFiles) {
    const ProgramFolder program;
    const FileLayer files = SystemFiles();
    const fs::path folder = program.folders.EmporiumFolder();
    program.Write("Emporium/a.dat", "a");
    fs::create_symlink("a.dat", folder / "link.dat");
    fs::create_symlink("ring.dat", folder / "ring.dat");
    ::mkfifo((folder / "pipe.dat").c_str(), 0600);
    using Kind = FileStatus::Kind;
    const auto kind = [&](const std::string& name) { return files.status(folder / name).kind; };
    EXPECT_EQ(kind("a.dat"), Kind::File);
    EXPECT_EQ(kind("link.dat"), Kind::Link);
    EXPECT_EQ(kind("pipe.dat"), Kind::Other);
    EXPECT_EQ(kind("."), Kind::Folder);
    EXPECT_EQ(kind(std::string(300, 'x')), Kind::Absent);
    EXPECT_EQ(files.read(folder / "link.dat", 1).bytes, "a");
    for (const char* name : {"pipe.dat", ".", "a.dat"})
        EXPECT_EQ(files.read(folder / name, 0).state, FileText::State::Unreadable) << name;
    for (const std::string& name : {std::string("ring.dat"), std::string(300, 'x')})
        EXPECT_EQ(files.read(folder / name, 0).state, FileText::State::Absent) << name;
    EXPECT_TRUE(FileExists(files, folder / "l*.dat"));
    EXPECT_FALSE(FileExists(files, folder / "ring.dat"));
    fs::permissions(folder / "a.dat", fs::perms::owner_read);
    EXPECT_FALSE(files.status(folder / "a.dat").writable);
    EXPECT_FALSE(WriteFiles(files, folder, {{folder / "a.dat", "neu"}}).stands);
    fs::permissions(folder / "a.dat", fs::perms::owner_all);
    EXPECT_TRUE(
        WriteFiles(files, folder, {{folder / "a.dat", "neu"}, {folder / "b.dat", "b"}}).stands);
    EXPECT_EQ(program.Read("Emporium/a.dat"), "neu");
    EXPECT_EQ(fs::status(folder / "a.dat").permissions(), fs::perms::owner_all);
    EXPECT_EQ(files.entries(folder).size(), 5U);
}

// The system's own calls, in a process that really ends.
TEST(SystemFiles, AProcessMayEndInAnyCall) {
    bool ended = true;
    for (int n = 1; ended; ++n) {
        const ProgramFolder program;
        const fs::path folder = program.folders.EmporiumFolder();
        program.Write("Emporium/a.dat", "alt a");
        const pid_t child = ::fork();
        if (child == 0) {
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
            ::_exit(WriteFiles(files, folder, {{folder / "a.dat", "neu"}, {folder / "b.dat", "b"}})
                            .stands
                        ? 0
                        : 2);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        ended = WEXITSTATUS(status) == 1;
        EXPECT_NE(WEXITSTATUS(status), 2);
        EXPECT_FALSE(FinishJournal(SystemFiles(), folder).failure);
        EXPECT_FALSE(RemoveStrays(SystemFiles(), folder));
        const bool isNew = program.Read("Emporium/a.dat") == "neu";
        EXPECT_EQ(program.Read("Emporium/b.dat"), isNew ? "b" : "(absent)") << n;
        EXPECT_EQ(SystemFiles().entries(folder).size(), isNew ? 2U : 1U) << n;
    }
}

} // namespace
} // namespace emporium::test
