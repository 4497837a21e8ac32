#pragma once

#include <atomic>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/posix/descriptor.h"
#include "platform/posix/folder_identity.h"

namespace tidewell::linux_system {

/// Which folder it is, and the mount through which it was reached.
struct MountedFolder {
    posix::FolderIdentity folder;
    std::uint64_t mount;

    friend bool operator==(const MountedFolder&, const MountedFolder&) = default;
};

/// Absent if the system does not tell.
std::optional<MountedFolder> mountedFolder(int descriptor);

/// The way from the folder that a measure began with down to one below it. Folders share the part
/// of the way that they have in common; what nobody stands below any more is given up. Copies may
/// be used by several threads at once.
class FolderChain {
 public:
    explicit FolderChain(MountedFolder start);
    FolderChain(const FolderChain& other);
    FolderChain(FolderChain&& other) noexcept : last_(std::exchange(other.last_, nullptr)) {}
    FolderChain& operator=(FolderChain other) noexcept {
        std::swap(last_, other.last_);
        return *this;
    }
    ~FolderChain();

    FolderChain below(std::string name, MountedFolder folder) const;

    /// Whether entering this folder from here would lead in a circle, as mounts can make one.
    bool isLoop(const MountedFolder& folder) const;

    /// Opens the folder again, name by name from the first. Fails if another one stands in its
    /// place by now.
    posix::Descriptor open(int start) const;

 private:
    struct Link {
        std::atomic<std::size_t> references = 1;
        Link* above;
        std::string name;
        MountedFolder folder;
    };

    explicit FolderChain(Link* last) : last_(last) {}
    std::vector<const Link*> linksBelowStart() const;

    Link* last_;
};

}  // namespace tidewell::linux_system
