#include "rules.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <sstream>
#include <utility>

#include "platform/path_text.h"
#include "platform/text.h"

namespace tidewell::test {

namespace fs = std::filesystem;

namespace {

const std::set<std::string> buildNames = {
    "node_modules", "Pods",        ".build",        ".dart_tool", ".next",  ".nuxt",
    ".gradle",      ".cxx",        ".venv",         "venv",       ".tox",   ".mypy_cache",
    "__pycache__",  ".terraform",  ".pytest_cache", ".angular",   ".turbo", "build",
    "target",       "DerivedData", ".parcel-cache"};

bool isIn(const std::string& path, const std::string& folder) {
    return path.starts_with(folder + "/");
}

/// Whether the entry lies at or below build output in one of the user's own folders.
bool isBuildOutput(const std::string& path, const std::string& folder) {
    std::istringstream pieces(path.substr(folder.size() + 1));
    std::string piece;
    while (std::getline(pieces, piece, '/'))
        if (buildNames.contains(piece)) return true;
    return false;
}

/// The folder's links followed, the entry's own not.
std::string realPathOf(const std::string& path) {
    std::error_code missing;
    const auto parent = fs::canonical(fs::path(path).parent_path(), missing);
    return missing ? "" : (parent / fs::path(path).filename()).string();
}

}  // namespace

Rules::Rules(const Ground& ground, const Snapshot& machine, const std::string& root,
             std::string home, const Items& reviewed)
    : ground_(ground), scratch_(root + ground.scratch), home_(std::move(home)) {
    addKeys();
    for (const std::string name : ground.ownFolders) {
        std::error_code missing;
        const auto real = fs::canonical(home_ + "/" + name, missing);
        if (!missing) own_.push_back(real.string());
        own_.push_back(home_ + "/" + name);
    }
    // What is no UTF-8 is shown with replacement characters.
    std::map<std::string, std::string> pathsByText;
    for (const auto& [path, entry] : machine) pathsByText.emplace(wellFormedText(path), path);
    for (const auto& item : reviewed) {
        auto& paths = items_.emplace_back();
        for (const auto& shown : item) {
            const auto known = pathsByText.find(shown);
            paths.push_back(realPathOf(known == pathsByText.end() ? shown : known->second));
            if (isOpen(paths.back()) && !isKey(paths.back())) areas_.push_back(paths.back());
        }
    }
}

bool Rules::isInArea(const std::string& path) const {
    return std::ranges::any_of(areas_,
                               [&](const auto& area) { return path == area || isIn(path, area); });
}

bool Rules::mayGo(const std::string& path) const {
    const bool isReviewed = std::ranges::any_of(areas_, [&](const auto& area) {
        return isIn(path, area) || (path == area && !fs::is_directory(fs::symlink_status(path)));
    });
    return isReviewed && isOpen(path) && !isKey(path) && !holdsKey(path);
}

void Rules::addKeys() {
    for (const auto& key : ground_.keys) {
        const auto path = home_ + "/" + key.path;
        std::error_code missing;
        const auto target = fs::canonical(path, missing);
        keys_.insert(path);
        if (missing) continue;
        keys_.insert(target.string());
        keys_.insert(realPathOf(path));
        addLinksBelow(target);
    }
}

/// What a link in a folder of keys leads to is a key as well.
void Rules::addLinksBelow(const std::string& folder) {
    std::error_code unreadable;
    for (const auto& entry : fs::recursive_directory_iterator(folder, unreadable)) {
        std::error_code missing;
        if (!entry.is_symlink(missing)) continue;
        const auto target = fs::canonical(entry.path(), missing);
        if (!missing) keys_.insert(target.string());
    }
}

bool Rules::isOpen(const std::string& path) const {
    if (isAtOrBelow(path, scratch_)) return true;
    if (!isIn(path, home_) || isKeptInProfile(path)) return false;
    return std::ranges::all_of(own_, [&](const auto& folder) {
        return path != folder && (!isIn(path, folder) || isBuildOutput(path, folder));
    });
}

bool Rules::isKeptInProfile(const std::string& path) const {
    const auto isCache = [this](const fs::path& name) {
        return std::ranges::find(ground_.profileCaches, name) != ground_.profileCaches.end();
    };
    return std::ranges::any_of(ground_.profiles, [&](const char* profile) {
        const auto folder = home_ + "/" + profile;
        return isAtOrBelow(path, folder) &&
               std::ranges::none_of(fs::path(path.substr(folder.size())), isCache);
    });
}

bool Rules::isKey(const std::string& path) const {
    return std::ranges::any_of(keys_,
                               [&](const auto& key) { return path == key || isIn(path, key); });
}

bool Rules::holdsKey(const std::string& path) const {
    return std::ranges::any_of(keys_, [&](const auto& key) { return isIn(key, path); });
}

}  // namespace tidewell::test
