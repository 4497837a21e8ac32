#pragma once

#include <compare>
#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <string>

#include "platform/disk_usage.h"

namespace tidewell {

/// What was measured in the course of one scan, for whoever comes upon the same folders in that
/// scan. It is never kept beyond it, and never asked about what is to be removed. Any thread.
class MeasuredFolders {
 public:
    /// Which folder it is, on which mount.
    struct Identity {
        std::uint64_t device;
        std::uint64_t inode;
        std::uint64_t mount;

        auto operator<=>(const Identity&) const = default;
    };

    std::optional<DiskUsage> find(const Identity& folder) const;
    void add(const Identity& folder, const DiskUsage& usage);

 private:
    mutable std::mutex mutex_;
    std::map<Identity, DiskUsage> usages_;
};

/// As diskUsage(path), but takes over what is known of the folder or of folders below it, and makes
/// known what it finds.
DiskUsage diskUsage(const std::string& path, MeasuredFolders& known);

}  // namespace tidewell
