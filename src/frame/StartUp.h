// The sequence that starts the program.
#pragma once

#include "base/Platform.h"
#include "frame/frmEmporiumMain.h"

namespace emporium {

/// Starts the program: what a killed run left is finished, the category files are brought up to
/// date and the category list is read. What could not be read or written is told in one box. If
/// another copy of the program uses the same data, a box asks whether to go on; false if not. A
/// data folder that is missing or can't be written is told, too, and stays as it is; so is a folder
/// for pages that can't be written.
bool StartUp(frmEmporiumMain& window, const Platform& platform);

} // namespace emporium
