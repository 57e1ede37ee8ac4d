#include "generator/WareFiles.h"

#include "base/Subs.h"
#include "files/FileFailure.h"
#include "store/CategoryPaths.h"
#include "text/GermanNumber.h"

#include <utility>

namespace emporium {

std::optional<std::int16_t> ReadWareCount(const IniSection& type) {
    const auto number = ReadGermanNumber(type.Value("WareCount"));
    return number ? std::optional(RoundToInt16(*number)) : std::nullopt;
}

std::string ReadWareCategory(const IniSection& type, std::int16_t n) {
    return type.Value("Ware" + std::to_string(n));
}

SharedText WareFiles::Text(const std::string& name) {
    SharedText& text = texts_[name];
    if (!text)
        text = std::make_shared<const std::string>(Read(name));
    return text;
}

std::string WareFiles::Read(const std::string& name) {
    if (!IsPlainName(name))
        return {};
    const auto file = CategoryPath(disk_.folders, name);
    if (!FileExists(disk_.files, file))
        return {};
    FileText category = disk_.files.read(file, LargestFile);
    if (category.state == FileText::State::Unreadable)
        faults_.push_back(FaultLine({file, category.reason}));
    return std::move(category.bytes);
}

} // namespace emporium
