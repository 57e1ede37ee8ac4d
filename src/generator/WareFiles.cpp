#include "generator/WareFiles.h"

#include "base/Subs.h"
#include "files/FileFailure.h"
#include "store/CategoryPaths.h"

#include <utility>

namespace emporium {

SharedText WareFiles::Text(const std::string& name) {
    SharedText& text = texts_[name];
    if (!text)
        text = std::make_shared<const std::string>(Read(name));
    return text;
}

std::string WareFiles::Read(const std::string& name) {
    const auto file = CategoryPath(disk_.folders, name);
    if (!IsPlainName(name) || !FileExists(disk_.files, file))
        return {};
    FileText category = disk_.files.read(file, LargestFile);
    if (category.state == FileText::State::Unreadable)
        faults_.push_back(FaultLine({file, category.reason}));
    return std::move(category.bytes);
}

} // namespace emporium
