#include "cleanup/sweep_obstacles.h"

#include <algorithm>

#include "cleanup/target_catalogue.h"
#include "platform/files.h"
#include "platform/path_text.h"

namespace tidewell {

SweepObstacles::SweepObstacles(const Host& host) {
    if (catalogueOf(host.system).sweepCare == SweepCare::byContent)
        seen_.emplace(Seen{.openFiles = OpenFiles(host), .mounts = MountTable::read()});
}

bool SweepObstacles::standIn(const std::string& path) const {
    if (!seen_) return false;
    const auto real = resolvedPath(path).value_or(path);
    const auto mounted = seen_->mounts.placesBelow(parentPath(real));
    return seen_->openFiles.areIn(real) || std::ranges::any_of(mounted, [&real](const auto& place) {
               return isAtOrBelow(place, real);
           });
}

}  // namespace tidewell
