#pragma once

#include <optional>
#include <string>

#include "platform/host.h"
#include "platform/mount_table.h"
#include "platform/running_programs.h"

namespace tidewell {

/// What keeps a sweep from an entry of a cache folder on machines where nobody vouches for such
/// entries: that a program works with it at this moment, or that something is mounted at or in it.
/// None on other machines. Seen once; any thread.
class SweepObstacles {
 public:
    explicit SweepObstacles(const Host& host);

    bool standIn(const std::string& path) const;

 private:
    struct Seen {
        OpenFiles openFiles;
        MountTable mounts;
    };
    std::optional<Seen> seen_;
};

}  // namespace tidewell
