#include "files/Journal.h"

#include <gtest/gtest.h>

namespace emporium::test {
namespace {

TEST(Journal, OnlyAWholeJournalIsRead) {
    const std::string text =
        JournalText({{"Ö 1.dat", "Ö 1.dat.orvan-neu0", std::nullopt, FingerprintOf("")},
                     {"b.dat", "", Fingerprint{1U << 31U, 7}, FingerprintOf("")}});
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
