#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <optional>
#include <string>

#include "platform/linux/link_free.h"
#include "platform/path_text.h"
#include "platform/posix/descriptor.h"
#include "platform/removal.h"

namespace tidewell {

namespace {

using link_free::Place;
using posix::Descriptor;

constexpr mode_t privateFolder = 0700;
constexpr mode_t sharedFolder = S_ISVTX | 0777;

/// A Trash is only used if it is a folder, and nobody else's.
Descriptor openTrash(const Descriptor& parent, const char* name) {
    ::mkdirat(parent.get(), name, privateFolder);
    Descriptor trash(::openat(parent.get(), name, posix::openFolderFlags));
    struct stat status;
    if (!trash || ::fstat(trash.get(), &status) != 0 || status.st_uid != ::geteuid()) return {};
    return trash;
}

/// The highest folder on the way to the item that lies on the same mount as the item.
Descriptor topOfVolume(const std::string& real, const Descriptor& parent) {
    for (auto slash = real.find('/'); slash != std::string::npos;
         slash = real.find('/', slash + 1)) {
        auto place = link_free::openPlace(slash == 0 ? "/" : real.substr(0, slash));
        if (place && link_free::isOnSameMount(place.get(), parent.get())) return place;
    }
    return {};
}

/// All users of the volume have theirs in one folder, in which nobody can touch another's.
Descriptor openVolumeTrash(const Descriptor& top) {
    if (!top) return {};
    const bool isNew = ::mkdirat(top.get(), ".Trashes", sharedFolder) == 0;
    const Descriptor all(::openat(top.get(), ".Trashes", posix::openFolderFlags));
    if (!all) return {};
    if (isNew) ::fchmod(all.get(), sharedFolder);
    return openTrash(all, std::to_string(::geteuid()).c_str());
}

/// The name for the nth item of the same name: the second of "a.txt" is "a 2.txt".
std::string numberedName(const std::string& name, int number) {
    if (number == 1) return name;
    const auto extension = extensionPosition(name);
    return name.substr(0, extension) + " " + std::to_string(number) + name.substr(extension);
}

/// The name that the item has in the Trash; none, with the reason in errno, if it did not move.
std::optional<std::string> moveInto(const Descriptor& trash, const Place& item) {
    for (int number = 1;; ++number) {
        auto name = numberedName(item.name, number);
        if (::renameat2(item.folder.get(), item.name.c_str(), trash.get(), name.c_str(),
                        RENAME_NOREPLACE) == 0)
            return name;
        if (errno != EEXIST) return std::nullopt;
    }
}

/// By a path below the descriptor, since the entry may not be one that can be opened.
void noteOrigin(const Descriptor& trash, const std::string& name, const std::string& origin) {
    const auto path = "/proc/self/fd/" + std::to_string(trash.get()) + "/" + name;
    ::lsetxattr(path.c_str(), "user.tidewell.origin", origin.data(), origin.size(), 0);
}

}  // namespace

Trashing moveToTrash(const TrashablePath& item, const std::string& home) {
    const auto place = link_free::openPlaceOf(item.real());
    const auto homeFolder = link_free::openPlace(home);
    if (!place.folder || !homeFolder) return Trashing::failed;
    auto trash = openTrash(homeFolder, ".Trash");
    if (!trash) return Trashing::failed;
    auto name = moveInto(trash, place);
    if (!name && errno == EXDEV) {
        trash = openVolumeTrash(topOfVolume(item.real(), place.folder));
        if (!trash) return Trashing::failed;
        name = moveInto(trash, place);
    }
    if (!name) return Trashing::failed;
    noteOrigin(trash, *name, item.named());
    return Trashing::moved;
}

}  // namespace tidewell
