// Where links lead.
#pragma once

#include "files/FileLayer.h"

namespace emporium {

/// Where the path leads in the end; `error` for links that lead in a ring.
std::filesystem::path FollowLinks(const FileLayer& files, std::filesystem::path path,
                                  std::error_code& error);

/// What stands where the path leads in the end; nothing stands at the end of a ring of links.
FileStatus StatusBehindLinks(const FileLayer& files, const std::filesystem::path& path);

} // namespace emporium
