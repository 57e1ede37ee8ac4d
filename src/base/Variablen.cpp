#include "base/Variablen.h"

namespace emporium {

Folders InitFolders(const std::filesystem::path& ProgramFolder) {
    return {ProgramFolder / "Data", ProgramFolder / "GFX", ProgramFolder / "HTML",
            ProgramFolder / "Temp", ProgramFolder / "Hilfe"};
}

} // namespace emporium
