// Small routines: a value of a settings file, the test for a file. The third of them, RollDice, is
// in Dice.
#pragma once

#include "files/FileLayer.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace emporium {

/// One value of a settings file, see IniFile; empty for a file that can't be read.
std::string ReadIniValue(const FileLayer& files, const std::filesystem::path& file,
                         std::string_view section, std::string_view key);

/// True if the path names a file that is neither hidden nor a folder, or if the system can't tell:
/// reading it then says why. The name may hold the wildcards "*" and "?"; one matching file is
/// enough then.
bool FileExists(const FileLayer& files, const std::filesystem::path& path);

} // namespace emporium
