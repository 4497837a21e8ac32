#include "platform/silent_mounts.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <memory>
#include <mutex>
#include <optional>

#include "platform/files.h"
#include "platform/path_text.h"
#include "platform/posix/far_mounts.h"
#include "platform/posix/folder_identity.h"
#include "platform/posix/reach.h"

namespace tidewell {

namespace {

/// Where a silent mount stands: by its path, and by the folder that shows it.
struct SilentPlace {
    std::string path;
    std::optional<Identity> parent;
    std::string name;
};
using SilentPlaces = std::vector<SilentPlace>;

bool liesOnOne(const SilentPlaces& places, std::string_view path) {
    return std::ranges::any_of(places,
                               [&](const auto& place) { return isAtOrBelow(path, place.path); });
}

SilentPlaces silentPlaces(const std::vector<posix::FarMount>& silent) {
    SilentPlaces places;
    for (const auto& mount : silent)
        places.push_back({.path = mount.place,
                          .parent = std::nullopt,
                          .name = std::string(lastPathComponent(mount.place))});
    for (auto& place : places) {
        const std::string parent(parentPath(place.path));
        struct stat status;
        if (!liesOnOne(places, parent) && ::stat(parent.c_str(), &status) == 0)
            place.parent = Identity{.device = static_cast<std::uint64_t>(status.st_dev),
                                    .inode = status.st_ino};
    }
    return places;
}

/// What is known of the machine's mounts, from the first question to the file system on.
class Knowledge {
 public:
    static Knowledge& ofMachine() {
        static auto& knowledge = *new Knowledge;
        return knowledge;
    }

    std::shared_ptr<const SilentPlaces> askAgain() {
        const auto far = posix::farMounts();
        auto found = std::make_shared<const SilentPlaces>(
            far.empty() ? SilentPlaces{} : silentPlaces(questions_.silentAmong(far)));
        const std::lock_guard lock(mutex_);
        places_ = found;
        isAnySilent_ = !found->empty();
        return found;
    }

    /// Null while all answer.
    std::shared_ptr<const SilentPlaces> silent() const {
        if (!isAnySilent_.load(std::memory_order_relaxed)) return nullptr;
        const std::lock_guard lock(mutex_);
        return places_;
    }

 private:
    Knowledge() { askAgain(); }

    posix::MountQuestions questions_;
    mutable std::mutex mutex_;
    std::shared_ptr<const SilentPlaces> places_;
    std::atomic<bool> isAnySilent_ = false;
};

std::vector<std::string> pathsOf(const SilentPlaces& places) {
    std::vector<std::string> paths;
    for (const auto& place : places) paths.push_back(place.path);
    std::ranges::sort(paths);
    const auto twice = std::ranges::unique(paths);
    paths.erase(twice.begin(), twice.end());
    return paths;
}

std::optional<std::string> linkTarget(const std::string& path) {
    std::string target(4096, '\0');
    const auto length = ::readlink(path.c_str(), target.data(), target.size());
    if (length < 0) return std::nullopt;
    target.resize(static_cast<std::size_t>(length));
    return target;
}

/// Goes the way to an entry link by link, as the system would, and stops short of a silent mount.
bool leadsToOne(const SilentPlaces& places, const std::string& path, posix::LastLink lastLink) {
    constexpr int mostLinks = 40;
    std::vector<std::string> ahead;  ///< the pieces still to go, the next one last
    const auto goOn = [&ahead](std::string_view way) {
        const auto pieces = pathPieces(way);
        ahead.insert(ahead.end(), pieces.rbegin(), pieces.rend());
    };
    goOn(path);
    std::string at;
    for (int links = 0; !ahead.empty() && links <= mostLinks;) {
        const auto piece = std::move(ahead.back());
        ahead.pop_back();
        if (piece == ".") continue;
        if (piece == "..") {
            at = std::string(parentPath(at));
            if (at == "/") at.clear();
            continue;
        }
        auto next = at + "/" + piece;
        if (liesOnOne(places, next)) return true;
        const bool isLast = ahead.empty() && lastLink == posix::LastLink::keep;
        const auto target = isLast ? std::nullopt : linkTarget(next);
        if (!target) {
            at = std::move(next);
            continue;
        }
        ++links;
        if (target->starts_with('/')) at.clear();
        goOn(*target);
    }
    return false;
}

}  // namespace

std::vector<std::string> findSilentMounts() {
    return pathsOf(*Knowledge::ofMachine().askAgain());
}

std::vector<std::string> knownSilentMounts() {
    const auto places = Knowledge::ofMachine().silent();
    return places ? pathsOf(*places) : std::vector<std::string>{};
}

namespace posix {

bool isOutOfReach(const std::string& path, LastLink lastLink) {
    const auto places = Knowledge::ofMachine().silent();
    if (!places || !leadsToOne(*places, absolutePath(path), lastLink)) return false;
    errno = ETIMEDOUT;
    return true;
}

Descriptor openFolder(std::string path) {
    while (path.size() > 1 && path.ends_with('/')) path.pop_back();
    if (isOutOfReach(path, LastLink::keep)) return Descriptor();
    return Descriptor(::open(path.c_str(), openFolderFlags));
}

Descriptor openSubfolder(int parent, const std::string& name) {
    if (const auto places = Knowledge::ofMachine().silent()) {
        const auto identity = identityOf(parent);
        const bool isSilent = std::ranges::any_of(*places, [&](const auto& place) {
            return place.name == name && identity && place.parent == identity;
        });
        if (isSilent) {
            errno = ETIMEDOUT;
            return Descriptor();
        }
    }
    return Descriptor(::openat(parent, name.c_str(), openFolderFlags));
}

}  // namespace posix

}  // namespace tidewell
