#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tidewell {

/// What is mounted where, as of one moment. A part of a disk can be mounted in several places, so
/// that what lies in it has as many paths, none of which is a link to another. Any thread.
class MountTable {
 public:
    struct Mount {
        std::string id;      ///< which no other mount has
        std::string parent;  ///< the mount that it was put on
        std::string disk;
        std::string part;   ///< the folder of the disk that is shown
        std::string place;  ///< where it is shown
        std::string kind;   ///< of its file system
    };

    /// The machine's table as it is now; one that is not known where the system does not tell. Asks
    /// nothing of the mounts themselves.
    static MountTable read();

    explicit MountTable(std::vector<Mount> mounts);

    /// In the order in which they were mounted.
    const std::vector<Mount>& mounts() const& { return mounts_; }
    void mounts() && = delete;  // they go with their table

    /// Whether it tells of the whole disk: not where it is hidden, nor from inside a part that was
    /// made the root.
    bool isKnown() const { return root() != nullptr; }

    /// The other paths of what stands at `path`, which is absolute and has no link in it. May name
    /// places that something else is mounted over.
    std::vector<std::string> otherPaths(std::string_view path) const;

    /// Where something is mounted below a folder.
    std::vector<std::string> placesBelow(std::string_view folder) const;

 private:
    const Mount* root() const;
    const Mount* holding(std::string_view path) const;

    std::vector<Mount> mounts_;
};

/// The number of the mount on which an entry itself stands, without the help of the table; absent
/// if it cannot be told. Any thread.
std::optional<std::uint64_t> mountNumber(const std::string& path);

}  // namespace tidewell
