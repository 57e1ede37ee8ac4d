// The image files beside the program: which control shows which, read once each, in this order.
#pragma once

#include "base/Disk.h"
#include "ui/Widgets.h"

namespace emporium::ui {

/// Reads the pictures of all buttons below the widget. A button whose file can't be read, or is no
/// picture, stays without one.
void LoadButtonPictures(const QWidget& window, const Disk& disk);

/// Reads a picture that has a place of its own; it is null if its file can't be read or is none.
void LoadPicture(Picture& picture, const Disk& disk);

} // namespace emporium::ui
