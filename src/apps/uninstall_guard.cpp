#include "apps/uninstall_guard.h"

#include "cleanup/kept_places.h"
#include "platform/files.h"
#include "platform/path_text.h"

namespace tidewell {

UninstallGuard::UninstallGuard(const Host& host)
    : host_(host),
      systemFolder_(host.systemPath("/System")),
      applications_(host.systemPath("/Applications")),
      ownApplications_(joinPath(host.home, "Applications")),
      library_(joinPath(host.home, "Library")) {}

bool UninstallGuard::isAllowed(std::string_view path) const {
    // What stands behind a zero byte would be judged here and not seen by the system.
    if (path.find('\0') != std::string_view::npos) return false;
    const auto standardized = standardizedPath(path);
    if (isBelow(standardized, systemFolder_)) return false;
    return isBelow(standardized, applications_) || isBelow(standardized, ownApplications_) ||
           isBelow(standardized, library_);
}

std::optional<TrashablePath> UninstallGuard::approve(std::string_view path) const {
    if (host_.homeOwner != HomeOwner::user || !isAllowed(path)) return std::nullopt;
    auto named = standardizedPath(path);
    auto real = realLocation(named);
    if (!real || !isAllowed(*real)) return std::nullopt;
    const KeptPlaces kept(host_);
    const auto names = kept.namesOf(*real);
    if (!kept.knowsNamesOf(*real) || kept.mustStay(names) || kept.isInKeys(names) ||
        kept.isPersonal(names))
        return std::nullopt;
    return TrashablePath(std::move(named), std::move(*real));
}

}  // namespace tidewell
