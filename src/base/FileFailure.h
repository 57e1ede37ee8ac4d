// What went wrong with a file, and how the user is told.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace emporium {

/// What failed, and why.
struct FileFailure {
    std::filesystem::path file;
    std::error_code reason;
};

/// The reason in German, a whole sentence. No reason means that the file is empty.
std::string ReasonText(const std::error_code& reason);

/// The text of a box: what could not be done, then the file and the reason.
std::string FailureText(std::string_view what, const FileFailure& failure);

} // namespace emporium
