#include "cleanup/deletion_guard.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "cleanup/cleanup_model.h"
#include "cleanup/kept_entries.h"
#include "cleanup/kept_places.h"
#include "cleanup/project_artifacts.h"
#include "cleanup/target_catalogue.h"
#include "platform/files.h"
#include "platform/path_text.h"
#include "platform/trash.h"

namespace tidewell {

namespace {

/// Whether what lies in a personal folder lies in build output there.
bool isBuildOutput(std::string_view path, std::string_view personalFolder) {
    return std::ranges::any_of(pathPieces(pathRelativeTo(path, personalFolder)),
                               [](std::string_view piece) {
                                   return isArtifactFolderName(piece) || isBuildFolderName(piece);
                               });
}

/// Where the scratch folders really lie. One that holds personal folders, such as the home folder
/// itself, or lies in one of them opens nothing.
std::vector<std::string> realScratchFolders(const std::vector<std::string>& roots,
                                            const KeptEntries& kept) {
    std::vector<std::string> found;
    for (const auto& root : roots) {
        auto real = realLocation(root);
        const auto overlaps = [&real](const auto& folder) {
            return isAtOrBelow(folder, *real) || isAtOrBelow(*real, folder);
        };
        if (real && std::ranges::none_of(kept.personalFolders, overlaps))
            found.push_back(std::move(*real));
    }
    return found;
}

/// Those of the user's own Trashes that no other rule opens, since they lie on other disks.
std::vector<std::string> trashesElsewhere(const Host& host) {
    auto folders = trashFolders(host);
    const auto kept = keptEntries(host);
    const auto roots = deletableRoots(host);
    std::erase_if(folders, [&](const auto& folder) {
        return allows(deletionRule(folder, host.home, roots, kept));
    });
    return folders;
}

/// Where everything may go: scratch folders, and such Trashes.
std::vector<std::string> openRoots(const Host& host) {
    auto roots = deletableRoots(host);
    for (auto& folder : trashesElsewhere(host)) roots.push_back(std::move(folder));
    return roots;
}

std::vector<std::string> realOpenRoots(const Host& host) {
    auto roots = realScratchFolders(deletableRoots(host), keptEntries(host));
    for (const auto& folder : trashesElsewhere(host))
        if (auto real = realLocation(folder)) roots.push_back(*std::move(real));
    return roots;
}

}  // namespace

std::vector<std::string> deletableRoots(const Host& host) {
    std::vector<std::string> roots;
    for (const auto& folder : {host.temporaryDirectory, host.userCacheDirectory})
        if (!folder.empty()) roots.push_back(standardizedPath(folder));
    return roots;
}

bool allows(DeletionRule rule) {
    switch (rule) {
        case DeletionRule::namedCache:
        case DeletionRule::deletableRoot:
        case DeletionRule::openFolder:
        case DeletionRule::buildFolder:
            return true;
        case DeletionRule::protectedPath:
        case DeletionRule::outsideHome:
        case DeletionRule::neverSwept:
        case DeletionRule::personalFolder:
            return false;
    }
    return false;
}

DeletionRule deletionRule(std::string_view path, std::string_view home,
                          const std::vector<std::string>& roots, const KeptEntries& kept) {
    const auto standardPath = standardizedPath(path);
    const bool isNamed = isAtOrBelowAny(standardPath, kept.namedByRows);
    if (isAtOrBelowAny(standardPath, kept.keys)) return DeletionRule::protectedPath;
    if (isAtOrBelowAny(standardPath, kept.profiles))
        return isNamed ? DeletionRule::namedCache : DeletionRule::protectedPath;
    if (isAtOrBelowAny(standardPath, roots)) return DeletionRule::deletableRoot;
    // With a home folder at "/" the whole machine would count as the user's own.
    if (home == "/" || !isBelow(standardPath, home)) return DeletionRule::outsideHome;
    const auto* folder = personalFolderOf(standardPath, kept);
    if (!folder && !isNamed && isAtOrBelowAny(standardPath, kept.neverSwept))
        return DeletionRule::neverSwept;
    if (!folder) return DeletionRule::openFolder;
    return isBuildOutput(standardPath, *folder) ? DeletionRule::buildFolder
                                                : DeletionRule::personalFolder;
}

/// What the guard of a folder's entries sees of the disk. To look for each entry would cost more
/// than to remove it, so a view serves for a moment, and longer where it is dear.
struct DeletionGuard::View {
    using Clock = std::chrono::steady_clock;
    static constexpr auto shortest = std::chrono::milliseconds(20);
    static constexpr int timesItsCost = 20;

    View(const DeletionGuard& guard, const std::string& folder)
        : kept(guard.keptPlaces()), names(kept.namesOf(folder)), readyAt(Clock::now()) {}

    bool isOld() const {
        return Clock::now() - readyAt >
               std::max<Clock::duration>(shortest, timesItsCost * (readyAt - begunAt));
    }

    Clock::time_point begunAt = Clock::now();
    KeptPlaces kept;
    std::vector<std::string> names;
    Clock::time_point readyAt;
};

DeletionGuard::DeletionGuard(const Host& host)
    : host_(host),
      namedByRows_(namedInside(keptEntries(host), namedCacheFolders(host))),
      roots_(openRoots(host)),
      realRoots_(realOpenRoots(host)) {}

KeptPlaces DeletionGuard::keptPlaces() const {
    auto entries = keptEntries(host_);
    entries.namedByRows = namedByRows_;
    return KeptPlaces(host_, std::move(entries));
}

DeletionRule DeletionGuard::verdict(const std::string& path) const {
    const auto named = standardizedPath(path);
    const auto real = realLocation(named);
    const auto kept = keptPlaces();
    return verdict(named, real ? kept.namesOf(*real) : std::vector<std::string>(), kept);
}

DeletionRule DeletionGuard::verdict(const std::string& path, const std::vector<std::string>& names,
                                    const KeptPlaces& seen) const {
    const auto named = standardizedPath(path);
    if (names.empty()) return deletionRule(named, host_.home, roots_, seen.entries());
    return judge(named, names, seen);
}

/// By what it is named first, then by where it really lies, then by its other names, which can only
/// close what those opened.
DeletionRule DeletionGuard::judge(std::string_view named, const std::vector<std::string>& names,
                                  const KeptPlaces& kept) const {
    const auto rule = deletionRule(named, host_.home, roots_, kept.entries());
    if (!allows(rule)) return rule;
    // In another user's home folder nothing may go, whatever its name.
    if (host_.homeOwner != HomeOwner::user) return DeletionRule::outsideHome;
    // The file system would read the path up to its first zero byte, and judge another one.
    if (named.find('\0') != std::string_view::npos || !kept.knowsNamesOf(names.front()))
        return DeletionRule::outsideHome;
    for (const auto& name : names) {
        const auto other = deletionRule(name, host_.home, realRoots_, kept.entries());
        const bool isRealLocation = &name == &names.front();
        if (!allows(other) && (isRealLocation || other != DeletionRule::outsideHome)) return other;
        if (other == DeletionRule::buildFolder &&
            !isProvenBuildOutput(name, kept.entries(), host_.system))
            return DeletionRule::personalFolder;
    }
    return rule;
}

std::optional<DeletablePath> DeletionGuard::approve(const std::string& path) const {
    if (!host_.mayRemove()) return std::nullopt;
    auto named = standardizedPath(path);
    auto real = realLocation(named);
    if (!real) return std::nullopt;
    const auto kept = keptPlaces();
    if (!allows(judge(named, kept.namesOf(*real), kept))) return std::nullopt;
    return DeletablePath(std::move(named), std::move(*real));
}

ChildGuard DeletionGuard::childGuard(const DeletablePath& folder) const {
    return [guard = *this, folder, view = View(*this, folder.real())](
               std::string_view name) mutable -> std::optional<DeletablePath> {
        if (view.isOld()) view = View(guard, folder.real());
        const auto names = view.kept.namesIn(view.names, name);
        auto named = joinPath(folder.named(), name);
        if (!allows(guard.judge(named, names, view.kept)) || view.kept.mustStay(names))
            return std::nullopt;
        return DeletablePath(std::move(named), joinPath(folder.real(), name));
    };
}

}  // namespace tidewell
