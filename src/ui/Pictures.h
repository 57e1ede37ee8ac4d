// The image files beside the program.
#pragma once

#include <QImage>

#include <filesystem>

namespace emporium::ui {

/// The image, the largest one of a file that holds several; null if it can't be read.
QImage LoadPicture(const std::filesystem::path& file);

/// An image that fills a place of that size. It is read no larger than the sharpest screen can
/// show it, which takes a fraction of the time and memory of a large file.
QImage LoadPictureFor(const std::filesystem::path& file, QSize place);

} // namespace emporium::ui
