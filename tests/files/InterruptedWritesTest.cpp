#include "base/Subs.h"
#include "files/FileWriting.h"
#include "files/Journal.h"
#include "support/FaultyFiles.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <map>
#include <thread>

namespace emporium::test {
namespace {

namespace fs = std::filesystem;

// Permissions and contents by file name.
using State = std::map<std::string, std::string>;
using Changes = std::map<std::string, std::optional<std::string>>;

const std::vector<Changes> AllChanges = {
    {{"a.dat", std::string(5000, 'n')}},
    {{"neu.dat", "frisch"}},
    {{"a.dat", std::nullopt}},
    {{"a.dat", "neu a"}, {"b.dat", ""}},
    {{"a.dat", std::nullopt}, {"b.dat", "neu b"}},
    {{"a.dat", std::nullopt}, {"b.dat", "neu b"}, {"neu.dat", "frisch"}}};

struct Disk {
    Disk() {
        for (const std::string name : {"a.dat", "b.dat", "c.dat"})
            program.Write("Emporium/" + name, "alt " + name);
        fs::permissions(folder / "a.dat", fs::perms::owner_read | fs::perms::owner_write);
    }

    State Look() const {
        State state;
        for (const auto& entry : fs::directory_iterator(folder))
            state[entry.path().filename().string()] =
                std::to_string(static_cast<unsigned>(entry.status().permissions())) + " " +
                SystemFiles().read(entry.path()).bytes;
        return state;
    }

    State With(const Changes& changes) const {
        State state = Look();
        for (const auto& [name, contents] : changes) {
            const std::string& before = state[state.contains(name) ? name : "c.dat"];
            const std::string mode = before.substr(0, before.find(' ') + 1);
            if (contents)
                state[name] = mode + *contents;
            else
                state.erase(name);
        }
        return state;
    }

    // Nothing if the program was killed, otherwise whether it could write.
    std::optional<bool> Write(const Changes& changes, const FileLayer& files) const {
        std::vector<FileChange> list;
        for (const auto& [name, contents] : changes)
            list.push_back({folder / name, contents});
        try {
            return !WriteFiles(files, folder, list);
        } catch (const KilledHere&) {
            return std::nullopt;
        }
    }

    // The next start, which may itself be killed, each time an operation later, until it is
    // through.
    State Finish() const {
        for (int n = 1;; ++n) {
            FaultyFiles faulty(Fault::Killed, n);
            try {
                EXPECT_FALSE(FinishInterruptedWrites(faulty.files, folder));
                return Look();
            } catch (const KilledHere&) {
            }
        }
    }

    ProgramFolder program;
    fs::path folder = program.folders.EmporiumFolder();
};

// False once there is no n-th operation.
bool TryFault(const Changes& changes, Fault fault, int n) {
    SCOPED_TRACE(testing::PrintToString(changes) + ", operation " + std::to_string(n));
    const Disk disk;
    const State before = disk.Look();
    const State wanted = disk.With(changes);
    FaultyFiles faulty(fault, n);
    const auto written = disk.Write(changes, faulty.files);
    const bool undone = written == false && fault == Fault::Once;
    EXPECT_TRUE(!undone || disk.Look() == before);
    const State finished = disk.Finish();
    EXPECT_TRUE(finished == wanted || (written != true && finished == before))
        << testing::PrintToString(finished);
    EXPECT_EQ(disk.Finish(), finished);
    return faulty.HasFired();
}

TEST(InterruptedWrites, WhicheverOperationBreaksAllFilesAreOldOrAllAreNew) {
    for (const Fault fault : {Fault::Once, Fault::Lasting, Fault::Killed})
        for (const Changes& changes : AllChanges)
            for (int n = 1; TryFault(changes, fault, n);)
                ++n;
}

TEST(InterruptedWrites, WhatLiesBehindLinksIsFinishedToo) {
    int finishedNew = 0;
    bool killed = true;
    for (int n = 1; killed; ++n) {
        const Disk disk;
        const ProgramFolder elsewhere;
        const fs::path target = elsewhere.root / "ziel.dat";
        fs::rename(disk.folder, elsewhere.root / "Emporium");
        std::error_code error;
        fs::create_directory_symlink(elsewhere.root / "Emporium", disk.folder, error);
        if (error == std::errc::function_not_supported)
            GTEST_SKIP() << "the standard library makes no links on this system";
        std::ofstream(target) << "alt";
        fs::create_symlink(target, disk.folder / "link.dat");
        FaultyFiles faulty(Fault::Killed, n);
        killed = !disk.Write({{"a.dat", "neu a"}, {"link.dat", "neu"}}, faulty.files);
        disk.Finish();
        EXPECT_EQ(std::distance(fs::directory_iterator(elsewhere.root), {}), 7) << "a stray file";
        const bool isNew = disk.program.Read("Emporium/a.dat") == "neu a";
        EXPECT_EQ(SystemFiles().read(target).bytes, isNew ? "neu" : "alt") << n;
        EXPECT_TRUE(fs::is_symlink(disk.folder / "link.dat"));
        finishedNew += isNew && killed ? 1 : 0;
    }
    EXPECT_GT(finishedNew, 0);
}

TEST(InterruptedWrites, AJournalWhoseContentsAreLostTakesNothingAway) {
    const Disk disk;
    std::ofstream(disk.folder / "b.dat.orvan-neu0") << "neu b";
    std::ofstream(disk.folder / JournalName, std::ios::binary)
        << JournalText({{"b.dat.orvan-neu0", "b.dat", 5, Checksum("neu b")},
                        {"c.dat.orvan-neu0", "c.dat", 5, Checksum("neu c")},
                        {"", "a.dat", 0, Checksum("")}});
    const auto failure = FinishJournal(SystemFiles(), disk.folder);
    EXPECT_TRUE(failure && failure->file == disk.folder / "c.dat");
    for (const std::string name : {"a.dat", "b.dat", "c.dat"})
        EXPECT_EQ(disk.program.Read("Emporium/" + name), "alt " + name);
    EXPECT_FALSE(FinishJournal(SystemFiles(), disk.folder)) << "told once";
}

TEST(InterruptedWrites, WithoutAWholeJournalNothingButTemporariesGoes) {
    const Disk disk;
    const State before = disk.Look();
    std::ofstream(disk.folder / "a.dat.orvan-neu0") << "neu";
    std::ofstream(disk.folder / JournalName, std::ios::binary)
        << JournalText({{"a.dat.orvan-neu0", "a.dat", 3, Checksum("neu")}}).substr(1);
    EXPECT_EQ(disk.Finish(), before);
    // A journal that can't be read may be a whole one, so its files have to stay.
    fs::create_directory(disk.folder / JournalName);
    std::ofstream(disk.folder / "a.dat.orvan-neu0") << "neu";
    EXPECT_TRUE(FinishInterruptedWrites(SystemFiles(), disk.folder));
    EXPECT_TRUE(fs::exists(disk.folder / "a.dat.orvan-neu0"));
}

TEST(FileWriting, ContentsGoToTheDiskByteForByteInHoweverManyWrites) {
    const Disk disk;
    FileLayer files = SystemFiles();
    files.write = [real = files.write](FileLayer::Handle handle, std::string_view bytes,
                                       std::size_t& written) {
        return real(handle, bytes.substr(0, 3), written);
    };
    for (const std::string& contents : {std::string("a\0\xE4\n\r\n\x1A", 7), std::string()}) {
        EXPECT_TRUE(disk.Write({{"a.dat", contents}}, files).value());
        EXPECT_EQ(disk.program.Read("Emporium/a.dat"), contents);
    }
    files.write = [](FileLayer::Handle, std::string_view, std::size_t&) {
        return std::error_code();
    };
    EXPECT_FALSE(disk.Write({{"a.dat", "neu"}}, files).value()) << "must not try for ever";
}

// A virus scanner or sync client looks into every file that has just been written.
TEST(FileWriting, AFileThatAnotherProgramHoldsForAMomentIsWrittenAllTheSame) {
    const Disk disk;
    std::ifstream other(disk.folder / "a.dat");
    std::thread release([&other] {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        other.close();
    });
    EXPECT_TRUE(disk.Write({{"a.dat", "neu"}}, SystemFiles()).value());
    release.join();
    EXPECT_EQ(disk.program.Read("Emporium/a.dat"), "neu");
}

// Beyond 260 characters some systems want a path in a form of its own.
TEST(FileWriting, APathMayBeLong) {
    const Disk disk;
    fs::path deep = disk.folder / ToPath("Spielrunde mit Ümläuten "_ansi);
    deep += std::string(140, 'o');
    const fs::path file = deep / (std::string(100, 'n') + ".dat");
    fs::create_directory(deep);
    const auto write = [&](std::optional<std::string> contents) {
        EXPECT_FALSE(WriteFiles(SystemFiles(), deep, {{file, contents}, {deep / "b.dat", "b"}}));
        EXPECT_FALSE(FinishInterruptedWrites(SystemFiles(), deep));
    };
    write("alt");
    write("neu");
    EXPECT_EQ(SystemFiles().read(file).bytes, "neu");
    EXPECT_EQ(EntriesOf(deep).size(), 2U);
    EXPECT_TRUE(FileExists(deep / "n*.dat"));
    write(std::nullopt);
    EXPECT_FALSE(FileExists(file));
}

TEST(FileWriting, WhatStandsInTheWayIsRefused) {
    const Disk disk;
    fs::permissions(disk.folder / "b.dat", fs::perms::owner_read);
    fs::create_directory(disk.folder / "d.dat");
    fs::create_hard_link(disk.folder / "a.dat", disk.folder / "e.dat");
    const State before = disk.Look();
    for (const Changes& changes : {Changes{{"a.dat", "neu"}, {"b.dat", "neu"}},
                                   {{"a.dat", "neu"}, {"b.dat", std::nullopt}},
                                   {{"d.dat", "neu"}},
                                   {{"a.dat", "mit"}, {"e.dat", "ohne"}},
                                   {{"fehlt/a.dat", "neu"}}}) {
        EXPECT_FALSE(disk.Write(changes, SystemFiles()).value());
        EXPECT_EQ(disk.Look(), before);
    }
    fs::permissions(disk.folder / "b.dat", fs::perms::owner_all); // or it could not be removed
}

TEST(Journal, OnlyAWholeJournalIsRead) {
    const std::string text = JournalText({{u8"Öl 1.dat.orvan-neu0", u8"Öl 1.dat", 0, Checksum("")},
                                          {"", "../fern/b.dat", 1U << 31U, Checksum("b")}});
    const auto read = ReadJournal(text);
    ASSERT_TRUE(read);
    EXPECT_EQ(JournalText(*read), text);
    for (std::size_t i = 0; i < text.size(); ++i) {
        EXPECT_FALSE(ReadJournal(text.substr(0, i))) << i;
        std::string damaged = text;
        damaged[i] = static_cast<char>(damaged[i] ^ 1);
        EXPECT_FALSE(ReadJournal(damaged)) << i;
    }
    EXPECT_FALSE(ReadJournal(text + text));
}

} // namespace
} // namespace emporium::test
