#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "advisor/sim_runtime.h"
#include "advisor/simulator_lists.h"
#include "platform/byte_count.h"
#include "platform/host.h"

namespace tidewell {

/// The cleanups that only the platform's own tools may perform, run as the user: Simulator
/// runtimes, dead simulators, local snapshots; and a Docker disk that is only reported. Has no
/// state but the machine that it works on. Every operation blocks until its tool has ended, however
/// long that takes; any thread but the main one. Whatever fails, a missing tool as well as output
/// of another shape, reads as an empty list, 0 or false.
class AdvisorService {
 public:
    explicit AdvisorService(Host host);

    /// The installed runtimes, largest first.
    std::vector<SimRuntime> simRuntimes() const;
    /// The names of the simulators, available or not, by the identifier of their runtime.
    DeviceNames deviceNamesByRuntime() const;
    bool deleteRuntime(const SimRuntime& runtime) const;

    /// How many simulators have lost their runtime.
    std::int64_t unavailableSimCount() const;
    bool removeUnavailableSims() const;

    std::int64_t localSnapshotCount() const;
    /// Asks the system to purge what it thinks safe, which it does over the minutes that follow.
    bool thinSnapshots() const;

    /// Bytes allocated by the disk of Docker Desktop's virtual machine.
    ByteCount dockerBytes() const;

 private:
    /// What the tool wrote, which may be nothing; absent unless it ended with status 0.
    std::optional<std::string> run(std::string_view tool,
                                   const std::vector<std::string>& arguments) const;

    Host host_;
};

}  // namespace tidewell
