#include "files/FileLayer.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

namespace emporium::test {
namespace {

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
