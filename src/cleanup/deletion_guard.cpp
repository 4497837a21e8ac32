#include "cleanup/deletion_guard.h"

#include <algorithm>
#include <utility>

#include "cleanup/cleanup_model.h"
#include "platform/files.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

bool isProtected(std::string_view path, std::string_view home) {
    return std::ranges::any_of(protectedHomePaths, [&](std::string_view entry) {
        return isAtOrBelow(path, joinPath(home, entry));
    });
}

bool isAtOrBelowAny(std::string_view path, const std::vector<std::string>& folders) {
    return std::ranges::any_of(folders,
                               [&](const auto& folder) { return isAtOrBelow(path, folder); });
}

bool isBuildOutput(const std::vector<std::string_view>& pieces) {
    return std::ranges::any_of(pieces, [](std::string_view piece) {
        return isArtifactFolderName(piece) || isBuildFolderName(piece);
    });
}

/// The protected paths where they really lie: the entries themselves, and what they lead to. People
/// keep such files elsewhere and link to them.
std::vector<std::string> realKeys(std::string_view home) {
    std::vector<std::string> keys;
    for (const auto entry : protectedHomePaths) {
        const auto path = joinPath(home, entry);
        auto target = resolvedPath(path);
        if (!target) continue;
        if (auto location = realLocation(path)) keys.push_back(std::move(*location));
        keys.push_back(std::move(*target));
    }
    return keys;
}

/// A scratch folder that holds personal folders, such as the home folder itself, opens nothing.
bool isScratch(const std::string& root, std::string_view home) {
    return std::ranges::none_of(personalFolders, [&](std::string_view name) {
        return isAtOrBelow(joinPath(home, name), root);
    });
}

std::vector<std::string> realScratchFolders(const std::vector<std::string>& roots,
                                            std::string_view home) {
    std::vector<std::string> found;
    for (const auto& root : roots) {
        auto real = realLocation(root);
        if (real && isScratch(*real, home)) found.push_back(std::move(*real));
    }
    return found;
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
        case DeletionRule::deletableRoot:
        case DeletionRule::openFolder:
        case DeletionRule::buildFolder:
            return true;
        case DeletionRule::protectedPath:
        case DeletionRule::outsideHome:
        case DeletionRule::personalFolder:
            return false;
    }
    return false;
}

DeletionRule deletionRule(std::string_view path, std::string_view home,
                          const std::vector<std::string>& roots) {
    const auto standardPath = standardizedPath(path);
    const auto standardHome = standardizedPath(home);
    if (isProtected(standardPath, standardHome)) return DeletionRule::protectedPath;
    if (isAtOrBelowAny(standardPath, roots)) return DeletionRule::deletableRoot;
    // With a home folder at "/" the whole machine would count as the user's own.
    if (standardHome == "/" || !isBelow(standardPath, standardHome))
        return DeletionRule::outsideHome;
    const auto pieces = pathPieces(pathRelativeTo(standardPath, standardHome));
    const bool isPersonal =
        std::ranges::find(personalFolders, pieces.front()) != personalFolders.end();
    if (!isPersonal) return DeletionRule::openFolder;
    return isBuildOutput(pieces) ? DeletionRule::buildFolder : DeletionRule::personalFolder;
}

DeletionGuard::DeletionGuard(const Host& host)
    : home_(host.home),
      homeOwner_(host.homeOwner),
      roots_(deletableRoots(host)),
      realRoots_(realScratchFolders(roots_, host.home)) {}

DeletionRule DeletionGuard::rule(std::string_view path) const {
    return deletionRule(path, home_, roots_);
}

bool DeletionGuard::allowsReal(std::string_view real, const std::vector<std::string>& keys) const {
    return allows(deletionRule(real, home_, realRoots_)) && !isAtOrBelowAny(real, keys);
}

std::optional<DeletablePath> DeletionGuard::approve(const std::string& path) const {
    // The file system would read the path up to its first zero byte, and judge another one.
    if (path.find('\0') != std::string::npos || homeOwner_ != HomeOwner::user) return std::nullopt;
    auto named = standardizedPath(path);
    if (!isDeletable(named)) return std::nullopt;
    auto real = realLocation(named);
    if (!real || !allowsReal(*real, realKeys(home_))) return std::nullopt;
    return DeletablePath(std::move(named), std::move(*real));
}

ChildGuard DeletionGuard::childGuard(const DeletablePath& folder) const {
    return [guard = *this, folder,
            keys = realKeys(home_)](std::string_view name) -> std::optional<DeletablePath> {
        auto named = joinPath(folder.named(), name);
        auto real = joinPath(folder.real(), name);
        const bool holdsKey =
            std::ranges::any_of(keys, [&](const auto& key) { return isBelow(key, real); });
        if (!guard.isDeletable(named) || !guard.allowsReal(real, keys) || holdsKey)
            return std::nullopt;
        return DeletablePath(std::move(named), std::move(real));
    };
}

}  // namespace tidewell
