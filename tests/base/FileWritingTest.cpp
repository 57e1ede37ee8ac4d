#include "base/FileWriting.h"
#include "base/Journal.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

namespace emporium::test {
namespace {

namespace fs = std::filesystem;
using fs::perms;

class FileWriting : public testing::Test {
protected:
    ProgramFolder program;
    fs::path folder = program.folders.EmporiumFolder();
    FileLayer files = SystemFiles();

    std::error_code Write(const char* name, std::string contents) {
        const auto failure = WriteFile(files, folder / name, std::move(contents));
        return failure ? failure->reason : std::error_code();
    }

    std::string Read(const char* name) const { return files.read(folder / name).bytes; }

    auto FileCount() const { return std::distance(fs::directory_iterator(folder), {}); }
};

TEST_F(FileWriting, ContentsGoToTheDiskByteForByteInHoweverManyWrites) {
    files.write = [real = files.write](FileLayer::Handle handle, std::string_view bytes,
                                       std::size_t& written) {
        return real(handle, bytes.substr(0, 3), written);
    };
    for (const std::string& contents :
         {std::string("a\0\xE4\n\r\n\x1A", 7), std::string(), std::string("zehn Bytes und mehr")}) {
        EXPECT_FALSE(Write("a.dat", contents));
        EXPECT_EQ(program.Read("Emporium/a.dat"), contents);
        EXPECT_EQ(Read("a.dat"), contents);
    }
    files.write = [](FileLayer::Handle, std::string_view, std::size_t&) {
        return std::error_code();
    };
    EXPECT_EQ(Write("a.dat", "neu"), std::errc::io_error);
    EXPECT_EQ(Read("a.dat"), "zehn Bytes und mehr");
    EXPECT_EQ(FileCount(), 1);
}

TEST_F(FileWriting, ALinkStaysALink) {
    fs::create_directory(folder / "fern");
    program.Write("Emporium/fern/ziel.dat", "alt");
    fs::create_symlink("fern/ziel.dat", folder / "eins.dat");
    fs::create_symlink("eins.dat", folder / "zwei.dat");
    fs::create_symlink("fern/neu.dat", folder / "leer.dat");
    EXPECT_FALSE(Write("zwei.dat", "neu"));
    EXPECT_FALSE(Write("leer.dat", "frisch"));
    EXPECT_EQ(Read("fern/ziel.dat") + " " + Read("fern/neu.dat"), "neu frisch");
    for (const char* link : {"eins.dat", "zwei.dat", "leer.dat"})
        EXPECT_TRUE(fs::is_symlink(folder / link)) << link;
}

TEST_F(FileWriting, PermissionsStayAndWhatStandsInTheWayIsRefused) {
    constexpr perms narrow = perms::owner_read | perms::owner_write | perms::group_read;
    program.Write("Emporium/a.dat", "alt a");
    program.Write("Emporium/b.dat", "alt b");
    fs::permissions(folder / "a.dat", narrow);
    fs::permissions(folder / "b.dat", perms::owner_read);
    EXPECT_FALSE(Write("a.dat", "neu a"));
    EXPECT_EQ(fs::status(folder / "a.dat").permissions(), narrow);
    fs::create_directory(folder / "c.dat");
    EXPECT_EQ(Write("b.dat", "neu b"), std::errc::permission_denied);
    EXPECT_EQ(Write("c.dat", "x"), std::errc::is_a_directory);
    EXPECT_EQ(Write("fehlt/a.dat", "x"), std::errc::no_such_file_or_directory);
    const auto failure =
        WriteFiles(files, folder, {{folder / "a.dat", "neuer"}, {folder / "b.dat", std::nullopt}});
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->file, folder / "b.dat");
    EXPECT_EQ(Read("a.dat") + " " + Read("b.dat"), "neu a alt b");
    EXPECT_EQ(fs::status(folder / "b.dat").permissions(), perms::owner_read);
    EXPECT_EQ(FileCount(), 3);
}

TEST(Journal, OnlyAWholeJournalIsRead) {
    const Journal journal = {{u8"Öl 1.dat.orvan-neu0", u8"Öl 1.dat", 0, Checksum("")},
                             {"", "../fern/b.dat", 1U << 31U, Checksum("b")}};
    const std::string text = JournalText(journal);
    const auto read = ReadJournal(text);
    ASSERT_TRUE(read && read->size() == journal.size());
    for (std::size_t i = 0; i < journal.size(); ++i) {
        EXPECT_EQ((*read)[i].temporary, journal[i].temporary);
        EXPECT_EQ((*read)[i].target, journal[i].target);
        EXPECT_EQ((*read)[i].length, journal[i].length);
        EXPECT_EQ((*read)[i].checksum, journal[i].checksum);
    }
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
