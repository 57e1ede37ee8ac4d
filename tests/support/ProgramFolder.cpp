#include "support/ProgramFolder.h"

#include "base/Ansi.h"

#include <gtest/gtest.h>

#include <atomic>
#include <fstream>
#include <iterator>
#include <unistd.h>

namespace emporium::test {

namespace fs = std::filesystem;

ProgramFolder::ProgramFolder() {
    static std::atomic<int> count = 0;
    root = fs::temp_directory_path() /
           ("emporium-test-" + std::to_string(::getpid()) + "-" + std::to_string(count++));
    folders = InitFolders(root);
    for (const char* part : {"Emporium", "Arsenal", "Atlas", "Borough"})
        fs::create_directories(folders.DataFolder / part);
    for (const auto& folder :
         {folders.GfxFolder, folders.HtmlFolder, folders.TempFolder, folders.HilfeFolder})
        fs::create_directories(folder);
}

ProgramFolder::~ProgramFolder() {
    std::error_code ignored;
    fs::remove_all(root, ignored);
}

void ProgramFolder::Write(std::string_view name, std::string_view bytes) const {
    std::ofstream out(folders.DataFolder / ToPath(name), std::ios::binary);
    out << bytes;
    ASSERT_TRUE(out.good()) << name;
}

std::string ProgramFolder::Read(std::string_view name) const {
    std::ifstream in(folders.DataFolder / ToPath(name), std::ios::binary);
    if (!in)
        return "(absent)";
    return {std::istreambuf_iterator<char>(in), {}};
}

std::string Lines(std::initializer_list<std::string_view> lines) {
    std::string text;
    for (const std::string_view line : lines)
        text.append(line).append("\r\n");
    return text;
}

} // namespace emporium::test
