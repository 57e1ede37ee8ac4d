// The image files beside the program: which control shows which, read once each, in this order.
#pragma once

#include "base/Disk.h"

#include <QWidget>

namespace emporium::ui {

/// Reads the pictures of all controls below the widget. A control whose file can't be read, or is
/// no picture, stays without one.
void LoadPictures(const QWidget& window, const Disk& disk);

} // namespace emporium::ui
