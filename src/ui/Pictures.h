// The image files beside the program.
#pragma once

#include <QImage>

#include <filesystem>

namespace emporium::ui {

/// The image, the largest one of a file that holds several; null if it can't be read.
QImage LoadPicture(const std::filesystem::path& file);

} // namespace emporium::ui
