#include "platform/macos/mounted_systems.h"

#include <algorithm>

#include "platform/path_text.h"
#include "platform/posix/far_mounts.h"
#include "platform/trash/volumes.h"

namespace tidewell::macos_system {

std::vector<struct statfs> mountedSystems() {
    constexpr int spare = 8;  // mounted between the two calls
    const int count = ::getfsstat(nullptr, 0, MNT_NOWAIT);
    if (count <= 0) return {};
    std::vector<struct statfs> systems(static_cast<std::size_t>(count + spare));
    const auto size = systems.size() * sizeof(struct statfs);
    const int filled = ::getfsstat(systems.data(), static_cast<int>(size), MNT_NOWAIT);
    systems.resize(static_cast<std::size_t>(std::max(filled, 0)));
    return systems;
}

std::string numberOf(const struct statfs& system) {
    return std::to_string(system.f_fsid.val[0]) + ":" + std::to_string(system.f_fsid.val[1]);
}

}  // namespace tidewell::macos_system

namespace tidewell::posix {

std::vector<FarMount> farMounts() {
    std::vector<FarMount> found;
    for (const auto& system : macos_system::mountedSystems())
        if (!(system.f_flags & MNT_LOCAL))
            found.push_back(
                {.number = macos_system::numberOf(system), .place = system.f_mntonname});
    return found;
}

}  // namespace tidewell::posix

namespace tidewell::trash {

std::vector<std::string> mountedDisks(const std::string& root) {
    std::vector<std::string> places;
    for (const auto& system : macos_system::mountedSystems()) {
        const bool isDisk =
            (system.f_flags & MNT_LOCAL) && !(system.f_flags & (MNT_RDONLY | MNT_DONTBROWSE));
        if (isDisk && isAtOrBelow(system.f_mntonname, root))
            places.emplace_back(system.f_mntonname);
    }
    std::ranges::sort(places);
    return places;
}

}  // namespace tidewell::trash
