#include "store/CategoryRenaming.h"

#include "base/Subs.h"
#include "files/FileFailure.h"
#include "files/FileWriting.h"
#include "store/CategoryPaths.h"

namespace emporium {

namespace {

void RenameOldFile(const Disk& disk, std::string_view name, std::vector<std::string>& faults) {
    const auto older = CategoryPath(disk.folders, std::string("Emporium").append(name));
    if (!FileExists(disk.files, older))
        return;
    const FileText text = disk.files.read(older, LargestFile);
    if (!text.IsWhole()) {
        faults.push_back(FaultLine({older, ReasonOf(text)}));
        return;
    }
    const auto result =
        WriteFiles(disk.files, disk.folders.EmporiumFolder(),
                   {{CategoryPath(disk.folders, name), text.bytes}, {older, std::nullopt}});
    if (result.failure)
        faults.push_back(FaultLine(*result.failure));
}

} // namespace

void RenameOldCategoryFiles(const Disk& disk, std::vector<std::string>& faults) {
    for (const std::string_view name : FixedCategories())
        RenameOldFile(disk, name, faults);
}

} // namespace emporium
