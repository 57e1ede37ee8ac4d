// The image files beside the program: which control shows which, read once each, in this order.
#pragma once

#include "base/Disk.h"

#include <QByteArray>
#include <QImage>
#include <QWidget>

namespace emporium::ui {

/// Reads the pictures of all controls below the widget. A control whose file can't be read, or is
/// no picture, stays without one.
void LoadPictures(const QWidget& window, const Disk& disk);

/// The image in the bytes of a file, the largest one if it holds several; null if there is none.
QImage Decode(const QByteArray& bytes);

/// The image in the bytes of a file, read no larger than fills a place of that size in pixels,
/// which takes a fraction of the time and memory of a large one.
QImage DecodeFor(const QByteArray& bytes, QSize pixels);

} // namespace emporium::ui
