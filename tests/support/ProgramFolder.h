// A program folder of its own for one test, removed at the end.
#pragma once

#include "base/Variablen.h"
#include "support/Lines.h"
#include "text/Ansi.h"

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <unistd.h>

namespace emporium::test {

class ProgramFolder {
public:
    /// Data with its sub-folders, GFX, HTML, Temp and Hilfe, all empty.
    ProgramFolder() {
        std::filesystem::remove_all(root); // left by a test that crashed under the same number
        for (const char* part : {"Emporium", "Arsenal", "Atlas", "Borough"})
            std::filesystem::create_directories(folders.DataFolder / part);
        for (const auto& folder :
             {folders.GfxFolder, folders.HtmlFolder, folders.TempFolder, folders.HilfeFolder})
            std::filesystem::create_directories(folder);
    }
    ~ProgramFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(root, ignored);
    }
    ProgramFolder(const ProgramFolder&) = delete;
    ProgramFolder& operator=(const ProgramFolder&) = delete;

    static inline std::atomic<int> count = 0;
    std::filesystem::path root =
        std::filesystem::temp_directory_path() /
        ("emporium-test-" + std::to_string(::getpid()) + "-" + std::to_string(count++));
    Folders folders = InitFolders(root);

    /// Writes a file below Data, e.g. "Emporium/Kleidung.dat" as ANSI bytes; the name is ANSI too.
    void Write(std::string_view name, std::string_view bytes) const {
        std::ofstream out(folders.DataFolder / ToPath(name), std::ios::binary);
        out << bytes;
        ASSERT_TRUE(out.good()) << name;
    }

    /// The bytes of a file below Data; "(absent)" if there is none.
    std::string Read(std::string_view name) const {
        std::ifstream in(folders.DataFolder / ToPath(name), std::ios::binary);
        return in ? std::string(std::istreambuf_iterator<char>(in), {}) : "(absent)";
    }
};

} // namespace emporium::test
