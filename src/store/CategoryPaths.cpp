#include "store/CategoryPaths.h"

#include <algorithm>
#include <string>
#include <unordered_set>

namespace emporium {

namespace {

// Names of devices, which Windows takes for the device whatever ending follows.
bool IsDeviceName(std::string_view name) {
    const std::string_view stem = name.substr(0, name.find('.'));
    const std::string folded = FoldCase(stem.substr(0, stem.find_last_not_of(' ') + 1));
    static const std::unordered_set<std::string> devices = {"con", "prn",    "aux",
                                                            "nul", "conin$", "conout$"};
    if (devices.count(folded) > 0)
        return true;
    constexpr std::string_view numbers = "0123456789¹²³"_ansi;
    return folded.size() == 4 && (folded.starts_with("com") || folded.starts_with("lpt")) &&
           numbers.find(folded.back()) != numbers.npos;
}

} // namespace

const std::array<std::string_view, 3>& FixedCategories() {
    static constexpr std::array<std::string_view, 3> names = {"Nahkampfwaffen", "Fernwaffen",
                                                              "Rüstungen"_ansi};
    return names;
}

bool IsFixedCategory(std::string_view name) {
    const auto& fixed = FixedCategories();
    return std::find(fixed.begin(), fixed.end(), name) != fixed.end();
}

std::filesystem::path CategoryPath(const Folders& folders, std::string_view name) {
    return folders.EmporiumFolder() / ToPath(std::string(name).append(CategoryEnding));
}

bool IsPlainName(std::string_view name) {
    constexpr std::string_view forbidden = "\\/:*?\"<>|";
    return !name.empty() && !IsDeviceName(name) &&
           std::none_of(name.begin(), name.end(), [&](char c) {
               return static_cast<unsigned char>(c) < 0x20 || c == 0x7F ||
                      forbidden.find(c) != forbidden.npos;
           });
}

bool IsOwnFile(std::string_view name) {
    static constexpr std::array own = {"itemkategorien"_ansi,     "shopgeneratorconfig"_ansi,
                                       "shopgeneratorshops"_ansi, "emporiumnahkampfwaffen"_ansi,
                                       "emporiumfernwaffen"_ansi, "emporiumrüstungen"_ansi};
    return std::find(own.begin(), own.end(), FoldCase(name)) != own.end();
}

} // namespace emporium
