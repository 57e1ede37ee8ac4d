// A program folder of its own for one test, removed at the end.
#pragma once

#include "base/Variablen.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace emporium::test {

class ProgramFolder {
public:
    /// Data with its sub-folders, GFX, HTML, Temp and Hilfe, all empty.
    ProgramFolder();
    ~ProgramFolder();
    ProgramFolder(const ProgramFolder&) = delete;
    ProgramFolder& operator=(const ProgramFolder&) = delete;

    std::filesystem::path root;
    Folders folders;

    /// Writes a file below Data, e.g. "Emporium/Kleidung.dat" as ANSI bytes; the name is ANSI too.
    void Write(std::string_view name, std::string_view bytes) const;

    /// The bytes of a file below Data; "(absent)" if there is none.
    std::string Read(std::string_view name) const;
};

/// Lines as a text with CR LF behind each.
std::string Lines(std::initializer_list<std::string_view> lines);

} // namespace emporium::test
