// The bytes of image files as images.
#pragma once

#include <QByteArray>
#include <QImage>

namespace emporium::ui {

/// The image in the bytes of a file, the largest one if it holds several; null if there is none.
QImage Decode(const QByteArray& bytes);

/// The image in the bytes of a file, read no larger than fills a place of that size in pixels,
/// which takes a fraction of the time and memory of a large one.
QImage DecodeFor(const QByteArray& bytes, QSize pixels);

} // namespace emporium::ui
