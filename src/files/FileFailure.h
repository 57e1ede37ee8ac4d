// What went wrong with a file, and how the user is told.
#pragma once

#include "files/FileLayer.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace emporium {

/// What failed, and why.
struct [[nodiscard]] FileFailure {
    std::filesystem::path file;
    std::error_code reason;
};

/// Why the file is not whole; no reason if it is.
std::error_code ReasonOf(const FileText& text);

/// The reason in German, a whole sentence. No reason means that the file is empty.
std::string ReasonText(const std::error_code& reason);

/// The text of a box: what could not be done, then the file and the reason.
std::string FailureText(std::string_view what, const FileFailure& failure);

/// One of several faults: the file's name and the reason.
std::string FaultLine(const FileFailure& failure);

/// The text of one box for several faults, one line for each.
std::string FaultsText(const std::vector<std::string>& faults);

} // namespace emporium
