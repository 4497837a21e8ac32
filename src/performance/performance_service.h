#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

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
    ByteCount memoryBytes = 0;       ///< physical footprint, 0 if it could not be read
    ProcessIdentity process;         ///< what is asked to quit, whoever has its number by then

    bool operator==(const RunningApp&) const = default;
};

/// Something that the system starts by itself when the user logs in or before.
struct LoginItem {
    std::string id;  ///< made anew at each reading
    std::string label;
    std::string program;   ///< what it runs, "—" if that is not told
    std::string plistURL;  ///< the path of the list that defines it
    std::string scope;     ///< "You" or "System"
};

/// Three read-only probes of the running system. Nothing is kept between calls; what cannot be read
/// counts as absent. They block; any thread.
class PerformanceService {
 public:
    explicit PerformanceService(Host host) : host_(std::move(host)) {}

    MemoryUsage memoryUsage() const { return tidewell::memoryUsage(); }
    /// The user's regular applications but this one, largest first.
    std::vector<RunningApp> runningApps() const;
    /// What the user's and the system's launch folders define, disabled items too, by label.
    std::vector<LoginItem> loginItems() const;

 private:
    Host host_;
};

}  // namespace tidewell
