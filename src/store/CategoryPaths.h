// The names of categories: the view over all of them, the fixed ones, and which file a name leads
// to.
#pragma once

#include "base/Variablen.h"
#include "text/Ansi.h"

#include <array>
#include <filesystem>
#include <string_view>

namespace emporium {

/// The view over all categories; no category itself.
inline constexpr std::string_view AllCategories = "Alles";

/// The categories that the import fills. They can't be deleted.
const std::array<std::string_view, 3>& FixedCategories();
bool IsFixedCategory(std::string_view name);

/// The file of a category. The name must be a plain file name, see IsPlainName.
std::filesystem::path CategoryPath(const Folders& folders, std::string_view name);

/// True if name + ".dat" leads to a file directly in its folder, on Linux and on Windows.
bool IsPlainName(std::string_view name);

/// True if name + ".dat" is a file of the folder that is no category, or that is renamed to one
/// at the next start.
bool IsOwnFile(std::string_view name);

/// What stands behind a category's name in that of its file.
inline constexpr std::string_view CategoryEnding = ".dat";

} // namespace emporium
