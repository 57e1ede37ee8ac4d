// The disk as the program knows it: the file system and the program's folders on it. They travel
// together, so that no operation can look for one's folders on another's disk.
#pragma once

#include "base/Variablen.h"
#include "files/FileLayer.h"

namespace emporium {

struct Disk {
    FileLayer files;
    Folders folders;
};

} // namespace emporium
