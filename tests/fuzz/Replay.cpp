// Gives every file of the folders to the fuzz target that it is built with.
#include "Fuzz.h"

#include <filesystem>
#include <fstream>
#include <iterator>

int main(int count, char** folders) {
    int replayed = 0;
    for (int i = 1; i < count; ++i)
        for (const auto& file : std::filesystem::directory_iterator(folders[i])) {
            std::ifstream in(file.path(), std::ios::binary);
            const std::string bytes{std::istreambuf_iterator<char>(in), {}};
            std::cout << file.path().filename() << std::endl;
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()),
                                   bytes.size());
            ++replayed;
        }
    return replayed > 0 ? 0 : 1;
}
