#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "performance/login_items.h"
#include "platform/byte_count.h"
#include "platform/host.h"
#include "platform/memory.h"
#include "platform/running_applications.h"

namespace tidewell {

struct RunningApp {
    std::int32_t id = 0;  ///< the process's number
    std::string name;
    std::optional<std::string> bundleID;
    std::optional<std::string> url;  ///< the bundle's path
    std::string iconFile = {};       ///< its picture's path; empty for none, and bundles
    ByteCount memoryBytes = 0;       ///< physical footprint, 0 if it could not be read
    /// How many processes the memory is of, where all of an application's are counted.
    std::optional<std::int64_t> processCount = std::nullopt;
    ProcessIdentity process;  ///< what is asked to quit, whoever has its number by then

    bool operator==(const RunningApp&) const = default;
};

/// Three read-only probes of the running system. Nothing is kept between calls; what cannot be read
/// counts as absent. They block; any thread.
class PerformanceService {
 public:
    explicit PerformanceService(Host host) : host_(std::move(host)) {}

    MemoryUsage memoryUsage() const { return tidewell::memoryUsage(); }
    /// The user's regular applications but this one, largest first.
    std::vector<RunningApp> runningApps() const;
    std::vector<LoginItem> loginItems() const { return tidewell::loginItems(host_); }

 private:
    Host host_;
};

}  // namespace tidewell
