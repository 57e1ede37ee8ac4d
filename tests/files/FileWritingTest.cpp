#include "files/FileWriting.h"
#include "files/Journal.h"
#include "files/Links.h"
#include "files/Recovery.h"
#include "files/Temporaries.h"
#include "support/MemoryDisk.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

namespace emporium::test {
namespace {

namespace fs = std::filesystem;

using State = std::map<std::string, std::string>;
using Changes = std::map<std::string, std::optional<std::string>>;

const std::vector<Changes> AllChanges = {
    {{"a.dat", std::string(5000, 'n')}},
    {{"neu.dat", "frisch"}},
    {{"a.dat", std::nullopt}},
    {{"a.dat", "neu a"}, {"b.dat", ""}},
    {{"a.dat", "neu a"}, {"b.dat", std::nullopt}, {"neu.dat", "frisch"}}};

struct Writing {
    Writing() {
        for (const std::string name : {"a.dat", "b.dat", "c.dat"})
            disk.Write("Emporium/" + name, "alt " + name);
    }

    State Look() {
        State state;
        for (const auto& file : disk.Files().entries(folder))
            state[file.filename().string()] = disk.Read("Emporium/" + file.filename().string());
        return state;
    }

    State With(const Changes& changes) {
        State state = Look();
        for (const auto& [name, contents] : changes)
            if (contents)
                state[name] = *contents;
            else
                state.erase(name);
        return state;
    }

    WriteResult Write(const Changes& changes) {
        std::vector<FileChange> list;
        for (const auto& [name, contents] : changes)
            list.push_back({folder / name, contents});
        return WriteFiles(disk.Files(), folder, list);
    }

    // The next start.
    State Finish() {
        disk.Restart();
        const Recovery recovery = FinishJournal(disk.Files(), folder);
        EXPECT_FALSE(recovery.failure || !recovery.notices.empty());
        EXPECT_FALSE(RemoveStrays(disk.Files(), folder));
        return Look();
    }

    MemoryDisk disk;
    fs::path folder = disk.folders.EmporiumFolder();
};

enum class Trouble { Fails, FailsFromThenOn, Killed, ContentsLost, NamesLost, BothLost };

// False once there is no n-th call.
bool TryTrouble(const Changes& changes, Trouble trouble, int n, int second) {
    SCOPED_TRACE(testing::PrintToString(changes) + ", call " + std::to_string(n) + ", trouble " +
                 std::to_string(static_cast<int>(trouble)));
    Writing here;
    const State before = here.Look(), wanted = here.With(changes);
    auto& disk = here.disk;
    disk.removesAtOnce = trouble == Trouble::BothLost;
    if (trouble == Trouble::Fails)
        disk.failing = {n, second};
    else
        (trouble == Trouble::FailsFromThenOn ? disk.failingFrom : disk.lastCall) = n;
    bool stands = false, dropped = false;
    try {
        stands = here.Write(changes).stands;
        dropped = !stands;
    } catch (const KilledHere&) {
    }
    const bool reached = disk.calls >= n;
    EXPECT_TRUE(!dropped || second > 0 || trouble != Trouble::Fails || here.Look() == before);
    if (trouble >= Trouble::Killed && second > 0) {
        disk.Restart();
        disk.failing = {second};
        EXPECT_TRUE(FinishJournal(disk.Files(), here.folder).failure ||
                    !here.Look().contains(JournalName));
    }
    if (trouble > Trouble::Killed)
        disk.CutPower(trouble != Trouble::NamesLost, trouble != Trouble::ContentsLost);
    const State finished = here.Finish();
    EXPECT_TRUE(finished == wanted || finished == before) << testing::PrintToString(finished);
    EXPECT_TRUE(reached || finished == wanted);
    EXPECT_TRUE(trouble >= Trouble::Killed || finished == (stands ? wanted : before));
    EXPECT_EQ(here.Finish(), finished);
    return reached;
}

TEST(FileWriting, WhicheverCallsBreakAllFilesAreOldOrAllAreNew) {
    for (const Trouble trouble : {Trouble::Fails, Trouble::FailsFromThenOn, Trouble::Killed,
                                  Trouble::ContentsLost, Trouble::NamesLost, Trouble::BothLost})
        for (const Changes& changes : AllChanges)
            for (int n = 1; TryTrouble(changes, trouble, n, 0); ++n)
                for (int second = n + 1; second < n + 15; ++second)
                    TryTrouble(changes, trouble, n, second);
}

TEST(FileWriting, WhatStandsInTheWayIsRefused) {
    Writing here;
    auto& disk = here.disk;
    disk.Put(here.folder / "b.dat", "alt").writable = false;
    disk.Put(here.folder / "link.dat", "/fremd/ziel.dat", FileStatus::Kind::Link);
    disk.Put(here.folder / "pipe.dat", "", FileStatus::Kind::Other);
    disk.Put(here.folder / "ordner.dat", "", FileStatus::Kind::Folder);
    disk.names[(here.folder / "e.dat").generic_u8string()] =
        disk.names[(here.folder / "a.dat").generic_u8string()];
    const State before = here.Look();
    for (const Changes& changes : {Changes{{"a.dat", "neu"}, {"b.dat", "neu"}},
                                   {{"a.dat", "neu"}, {"b.dat", std::nullopt}},
                                   {{"link.dat", "neu"}},
                                   {{"link.dat", std::nullopt}},
                                   {{"pipe.dat", "neu"}},
                                   {{"ordner.dat", "neu"}},
                                   {{"a.dat", "mit"}, {"e.dat", "ohne"}}}) {
        EXPECT_FALSE(here.Write(changes).stands);
        EXPECT_EQ(here.Look(), before);
    }
    disk.Put(here.folder / JournalName, "unlesbar", FileStatus::Kind::Folder);
    EXPECT_FALSE(here.Write({{"a.dat", "neu"}}).stands) << "nothing before the journal is finished";
    EXPECT_EQ(FinishJournal(disk.Files(), here.folder).notices.size(), 1U) << "set aside";
}

TEST(FileWriting, OnlyTemporariesAreSweptAway) {
    Writing here;
    for (const std::string name : {"y.orvan-neu", "z.orvan-neu1a"})
        here.disk.Write("Emporium/" + name, "");
    const State wanted = here.Look();
    for (const std::string name : {"a.dat.orvan-neu0", "x.html.orvan-neu12"})
        here.disk.Write("Emporium/" + name, "");
    EXPECT_FALSE(RemoveStrays(here.disk.Files(), here.folder));
    EXPECT_EQ(here.Look(), wanted);
}

TEST(FileWriting, AnExportGoesWhereTheUserSays) {
    Writing here;
    const FileLayer files = here.disk.Files();
    here.disk.Put(here.folder / "link.html", "a.dat", FileStatus::Kind::Link);
    EXPECT_FALSE(WriteDocument(files, here.folder / "link.html", "Laden"));
    EXPECT_EQ(here.disk.Read("Emporium/a.dat"), "Laden");
    here.disk.Put(here.folder / "b.dat", "alt").writable = false;
    EXPECT_TRUE(WriteDocument(files, here.folder / "b.dat", "Laden"));
    EXPECT_EQ(here.disk.Read("Emporium/b.dat"), "alt");
    for (int n = 1, calls = 0; calls == n - 1; ++n) {
        Writing closed; // the folder, so that the file is written in its place
        closed.disk.Put(closed.folder, "", FileStatus::Kind::Folder).writable = false;
        closed.disk.failing = {n};
        const FileLayer layer = closed.disk.Files();
        const bool kept = WriteDocument(layer, closed.folder / "b.dat", "Laden").has_value();
        EXPECT_EQ(closed.disk.Read("Emporium/b.dat"), kept ? "alt b.dat" : "Laden");
        EXPECT_TRUE(!kept || closed.disk.calls >= n);
        EXPECT_TRUE(WriteDocument(layer, closed.folder / "neu.html", "Laden"));
        Writing fails;
        const State before = fails.Look();
        fails.disk.failing = {n};
        const auto failure = WriteDocument(fails.disk.Files(), fails.folder / "c.dat", "Laden");
        EXPECT_EQ(fails.Look(), failure ? before : fails.With({{"c.dat", "Laden"}}));
        Writing cut;
        cut.disk.lastCall = n;
        try {
            EXPECT_FALSE(WriteDocument(cut.disk.Files(), cut.folder / "c.dat", "Laden"));
        } catch (const KilledHere&) {
        }
        calls = cut.disk.calls;
        cut.disk.CutPower(true, true);
        const std::string page = cut.disk.Read("Emporium/c.dat");
        EXPECT_TRUE(page == "Laden" || page == "alt c.dat") << page;
    }
}

JournalEntry Entry(const char* name, std::optional<std::string> before, std::string after) {
    return {name, std::string(name) + ".orvan-neu0",
            before ? std::optional(FingerprintOf(*before)) : std::nullopt, FingerprintOf(after)};
}

TEST(Recovery, LaterWorkStaysAndNothingBehindItFollows) {
    const JournalEntry removal{"c.dat", "", FingerprintOf("alt c.dat"), FingerprintOf("")};
    for (const auto kind : {FileStatus::Kind::File, FileStatus::Kind::Link}) {
        Writing here;
        here.disk.Put(here.folder / "b.dat", "later", kind);
        here.disk.Write("Emporium/a.dat.orvan-neu0", "neu a");
        here.disk.Write("Emporium/b.dat.orvan-neu0", "neu b");
        here.disk.Write("Emporium/" + std::string(JournalName),
                        JournalText({Entry("a.dat", "alt a.dat", "neu a"),
                                     Entry("b.dat", "alt b.dat", "neu b"), removal}));
        const Recovery recovery = FinishJournal(here.disk.Files(), here.folder);
        EXPECT_FALSE(recovery.failure);
        ASSERT_EQ(recovery.notices.size(), 1U);
        EXPECT_TRUE(recovery.notices[0].starts_with("b.dat: "));
        EXPECT_EQ(here.Look(),
                  (State{{"a.dat", "neu a"}, {"b.dat", "later"}, {"c.dat", "alt c.dat"}}));
    }
}

TEST(Recovery, AJournalThatIsNotOursIsSetAside) {
    const std::string text = JournalText({Entry("a.dat", "alt a.dat", "neu a")});
    const auto foreign = [](const char* target, const char* temporary) {
        return JournalText({{target, temporary, std::nullopt, FingerprintOf("neu")}});
    };
    const auto sealed = [](const std::string& lines, const char* heading = "orvan-journal 2\n") {
        const std::string whole = heading + lines;
        return whole + std::to_string(FingerprintOf(whole).checksum) + "\n";
    };
    for (const std::string& journal :
         {text /* without the new contents */, text.substr(1), std::string(),
          sealed("", "orvan-journal 1\n"), sealed("x.dat\n\n-\n-\n-\n-\n"),
          sealed("x.dat\n\n1\nx\n1\n1\n"), sealed("x.dat\n\n"),
          foreign("../b.dat", "../b.dat.orvan-neu0"), foreign("/x.dat", "/x.dat.orvan-neu0"),
          foreign("x.dat", "c.dat"), foreign("x.dat", "b.dat.orvan-neu0"), foreign("..", "")}) {
        Writing here;
        State wanted = here.Look();
        here.disk.Write("Emporium/" + std::string(JournalName), journal);
        const Recovery recovery = FinishJournal(here.disk.Files(), here.folder);
        EXPECT_FALSE(recovery.failure);
        EXPECT_EQ(recovery.notices.size(), 1U);
        wanted[std::string(JournalName) + "-beiseite"] = journal;
        EXPECT_EQ(here.Look(), wanted);
    }
}

TEST(FaultsText, ShowsTwelveAndCountsTheOthers) {
    std::vector<std::string> faults(12, "x");
    const std::string twelve = FaultsText(faults);
    EXPECT_EQ(twelve, "x\nx\nx\nx\nx\nx\nx\nx\nx\nx\nx\nx");
    faults.resize(14);
    EXPECT_EQ(FaultsText(faults), twelve + "\n... und 2 weitere Meldungen.");
}

} // namespace
} // namespace emporium::test
