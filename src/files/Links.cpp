#include "files/Links.h"

namespace emporium {

std::filesystem::path FollowLinks(const FileLayer& files, std::filesystem::path path,
                                  std::error_code& error) {
    constexpr int limit = 40;
    for (int i = 0; i < limit; ++i) {
        const std::filesystem::path target = files.linkTarget(path);
        if (target.empty())
            return path;
        path = path.parent_path() / target;
    }
    error = std::make_error_code(std::errc::too_many_symbolic_link_levels);
    return path;
}

FileStatus StatusBehindLinks(const FileLayer& files, const std::filesystem::path& path) {
    std::error_code ring;
    const std::filesystem::path target = FollowLinks(files, path, ring);
    return ring ? FileStatus() : files.status(target);
}

} // namespace emporium
