#include "generator/ShopTypes.h"

#include "files/FileFailure.h"
#include "text/LineReader.h"

namespace emporium {

namespace {

FileText ReadConfigFile(const Disk& disk, const char* name, std::vector<std::string>& faults) {
    const auto file = disk.folders.EmporiumFolder() / name;
    FileText text = disk.files.read(file, LargestList);
    if (!text.IsWhole())
        faults.push_back(FaultLine({file, ReasonOf(text)}));
    return text;
}

} // namespace

std::vector<std::string> ReadShopTypes(const Disk& disk, std::vector<std::string>& faults) {
    const FileText text = ReadConfigFile(disk, "ShopgeneratorShops.dat", faults);
    std::vector<std::string> types;
    LineReader lines(text.bytes);
    for (std::string_view line; types.size() < MaxRows && lines.Next(line);)
        types.emplace_back(line);
    if (text.IsWhole() && types.empty())
        faults.push_back(FaultLine({"ShopgeneratorShops.dat", {}}));
    if (!lines.AtEnd())
        faults.emplace_back("ShopgeneratorShops.dat: Es werden nur die ersten 32767 Shoparten "
                            "gezeigt.");
    return types;
}

IniSection ReadTypeConfig(const Disk& disk, std::string_view shopType,
                          std::vector<std::string>& faults) {
    return {ReadConfigFile(disk, "ShopgeneratorConfig.dat", faults).bytes, shopType};
}

} // namespace emporium
