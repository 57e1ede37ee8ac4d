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

    State Look() const { return disk.Contents(folder); }

    State With(const Changes& changes) {
        State state = Look();
        for (const auto& [name, contents] : changes)
            if (state.erase(name); contents)
                state[name] = *contents;
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
        disk.Restart(Trouble::Killed);
        const Recovery recovery = FinishJournal(disk.Files(), folder);
        EXPECT_FALSE(recovery.failure || !recovery.notices.empty());
        EXPECT_FALSE(RemoveStrays(disk.Files(), folder));
        return Look();
    }

    MemoryDisk disk;
    fs::path folder = disk.folders.EmporiumFolder();
};

// False once there is no n-th call.
bool TryTrouble(const Changes& changes, Trouble trouble, int n, int second) {
    SCOPED_TRACE(testing::PrintToString(changes) + " and " + std::to_string(second));
    Writing here;
    const State before = here.Look(), wanted = here.With(changes);
    auto& disk = here.disk;
    std::optional<bool> stands;
    const bool reached =
        disk.Suffer(trouble, n, second, [&] { stands = here.Write(changes).stands; });
    EXPECT_TRUE(stands != false || second > 0 || trouble != Trouble::Fails ||
                here.Look() == before);
    if (trouble >= Trouble::Killed && second > n) {
        disk.Restart(Trouble::Killed);
        disk.failing = {second};
        EXPECT_TRUE(FinishJournal(disk.Files(), here.folder).failure ||
                    !here.Look().contains(JournalName));
    }
    disk.Restart(trouble);
    const State finished = here.Finish();
    EXPECT_TRUE(finished == wanted || finished == before) << testing::PrintToString(finished);
    EXPECT_TRUE(reached || second > 0 || finished == wanted);
    EXPECT_TRUE(trouble >= Trouble::Killed || finished == (*stands ? wanted : before));
    EXPECT_EQ(here.Finish(), finished);
    return reached;
}

TEST(FileWriting, WhicheverCallsBreakAllFilesAreOldOrAllAreNew) {
    for (const Changes& changes : AllChanges)
        Sweep([&changes](Trouble trouble, int n) {
            const bool reached = TryTrouble(changes, trouble, n, 0);
            const int first = trouble == Trouble::BothLost ? std::max(1, n - 3) : n + 1;
            const int end = trouble == Trouble::FailsFromThenOn ? 0 : n + 15;
            for (int second = first; reached && second < end; ++second)
                TryTrouble(changes, trouble, n, second);
            return reached;
        });
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
        for (const std::string& failing : {std::string(), "status " + changes.rbegin()->first}) {
            disk.failingCall = failing;
            EXPECT_FALSE(here.Write(changes).stands);
            EXPECT_EQ(here.Look(), before);
        }
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
    Sweep([](Trouble trouble, int n) {
        bool reached = false;
        for (const bool inPlace : {false, true}) {
            Writing place;
            const State before = place.Look(), wanted = place.With({{"c.dat", "Laden"}});
            place.disk.Put(place.folder, "", FileStatus::Kind::Folder).writable = !inPlace;
            const FileLayer layer = place.disk.Files();
            bool written = false;
            const bool broken = place.disk.Suffer(trouble, n, 0, [&] {
                written = !WriteDocument(layer, place.folder / "c.dat", "Laden");
            });
            place.disk.Restart(trouble);
            const std::string page = place.disk.Read("Emporium/c.dat");
            EXPECT_TRUE(written ? page == "Laden" : broken);
            EXPECT_TRUE(trouble > Trouble::Fails || place.Look() == (written ? wanted : before));
            EXPECT_TRUE(inPlace || page == "Laden" || page == "alt c.dat") << page;
            EXPECT_EQ(WriteDocument(layer, place.folder / "neu.html", "").has_value(), inPlace);
            reached = reached || broken;
        }
        return reached;
    });
}

TEST(Journal, OnlyAWholeJournalIsRead) {
    const std::string text =
        JournalText({{u8"Ö 1.dat", u8"Ö 1.dat.orvan-neu0", std::nullopt, FingerprintOf("")},
                     {"b.dat", "", Fingerprint{1U << 31U, 7}, FingerprintOf("")}});
    EXPECT_EQ(JournalText(ReadJournal(text).value()), text);
    for (std::size_t i = 0; i < text.size(); ++i) {
        EXPECT_FALSE(ReadJournal(text.substr(0, i))) << i;
        std::string damaged = text;
        damaged[i] = static_cast<char>(damaged[i] ^ 1);
        EXPECT_FALSE(ReadJournal(damaged)) << i;
    }
    EXPECT_FALSE(ReadJournal(text + text));
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
          sealed("x.dat\n\n1\nx\n1\n1\n"), sealed("x.dat\n\n"), sealed("\xFF\n\n-\n-\n1\n1\n"),
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

TEST(SystemFiles, OneHandAtATimeAndEveryCopyIsSeen) {
    const ProgramFolder program;
    const FileLayer files = SystemFiles();
    const auto folder = program.folders.EmporiumFolder();
    const FolderClaim first = files.claim(folder);
    EXPECT_FALSE(first.takenElsewhere);
    EXPECT_TRUE(files.claim(folder).takenElsewhere);
    std::shared_ptr<void> mine, others;
    EXPECT_FALSE(files.lock(folder, mine));
    EXPECT_EQ(files.lock(folder, others), std::errc::device_or_resource_busy);
    mine.reset();
    EXPECT_FALSE(files.lock(folder, others));
}

} // namespace
} // namespace emporium::test
