// The folders of the program, all derived from the folder that holds it, the product's title, and
// how much its lists hold.
#pragma once

#include <filesystem>
#include <string_view>

namespace emporium {

inline constexpr std::string_view ProgramTitle = "Orvan-Emporium 3";

/// The views and the shop hold at most this many rows: row numbers have 16 bits.
inline constexpr int MaxRows = 32767;

struct Folders {
    std::filesystem::path DataFolder;
    std::filesystem::path GfxFolder;
    std::filesystem::path HtmlFolder;
    std::filesystem::path TempFolder;
    std::filesystem::path HilfeFolder;

    std::filesystem::path EmporiumFolder() const { return DataFolder / "Emporium"; }
};

/// The folders in that of the program. Nothing is tested for existence.
Folders InitFolders(const std::filesystem::path& ProgramFolder);

} // namespace emporium
