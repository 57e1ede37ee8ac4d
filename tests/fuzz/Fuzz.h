// What the fuzz targets share: each is one function that takes any bytes and ends the program if a
// property of the code under test does not hold. Under the preset `fuzz` libFuzzer calls it, in all
// other presets Replay.cpp does with the files of the corpus.
#pragma once

#include "files/FileLayer.h"

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <map>
#include <string>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace emporium::fuzz {

inline void Expect(bool holds, const char* property) {
    if (holds)
        return;
    std::cerr << "does not hold: " << property << std::endl;
    std::abort();
}

inline std::string_view TextOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// A disk that holds files by their whole path.
using Disk = std::map<std::string, std::string>;

/// The file operations on such a disk. It must outlive them.
inline FileLayer FilesOn(Disk& disk) {
    struct Open {
        std::map<FileLayer::Handle, std::string> names;
        FileLayer::Handle last = 0;
    };
    const auto open = std::make_shared<Open>();
    FileLayer files;
    files.read = [&disk](const FileLayer::Path& file) {
        const auto found = disk.find(file.string());
        return found == disk.end() ? FileText()
                                   : FileText{FileText::State::Whole, found->second, {}};
    };
    files.createNew = [&disk, open](const FileLayer::Path& file, FileLayer::Handle& handle) {
        if (!disk.emplace(file.string(), "").second)
            return std::make_error_code(std::errc::file_exists);
        open->names[handle = ++open->last] = file.string();
        return std::error_code();
    };
    files.write = [&disk, open](FileLayer::Handle handle, std::string_view bytes,
                                std::size_t& written) {
        written = (bytes.size() + 1) / 2; // the caller must come again
        disk[open->names.at(handle)].append(bytes.substr(0, written));
        return std::error_code();
    };
    files.flush = [](FileLayer::Handle) { return std::error_code(); };
    files.close = [open](FileLayer::Handle handle) {
        open->names.erase(handle);
        return std::error_code();
    };
    files.copyMode = [](const auto&, const auto&) { return std::error_code(); };
    files.rename = [&disk](const FileLayer::Path& from, const FileLayer::Path& to) {
        disk[to.string()] = disk.at(from.string());
        disk.erase(from.string());
        return std::error_code();
    };
    files.remove = [&disk](const FileLayer::Path& file) {
        disk.erase(file.string());
        return std::error_code();
    };
    files.flushFolder = [](const auto&) { return std::error_code(); };
    return files;
}

/// The lines of a text, found in another way than the program's own; without their ends.
inline std::vector<std::string> LinesOf(std::string_view text) {
    std::vector<std::string> lines;
    bool begun = false;
    for (const char c : text) {
        if (!begun)
            lines.emplace_back();
        begun = c != '\n';
        if (begun)
            lines.back() += c;
        else if (!lines.back().empty() && lines.back().back() == '\r')
            lines.back().pop_back();
    }
    return lines;
}

/// True if every line ends like the first one, the last one included, and no line holds a further
/// CR.
inline bool IsWellFormed(std::string_view text) {
    std::string crLf, lf;
    for (const std::string& line : LinesOf(text)) {
        if (line.find('\r') != line.npos)
            return false;
        crLf += line + "\r\n";
        lf += line + "\n";
    }
    return text == crLf || text == lf;
}

} // namespace emporium::fuzz
