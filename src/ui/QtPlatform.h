// The platform services that Qt gives: boxes, dialogs, the viewer, the wait pointer.
#pragma once

#include "base/Platform.h"
#include "ui/Mirror.h"

#include <QWidget>

namespace emporium::ui {

/// The services that need nothing of the window but its being there: boxes, save dialog,
/// viewer, wait pointer. Before a box opens, the windows show what has come about so far.
Platform QtPlatform(QWidget& window, const Mirror& mirror);

} // namespace emporium::ui
