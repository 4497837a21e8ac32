#include "advisor/advisor_service.h"

#include <utility>

#include "platform/disk_usage.h"
#include "platform/files.h"
#include "platform/process.h"

namespace tidewell {

namespace {

constexpr std::string_view xcrun = "/usr/bin/xcrun";
constexpr std::string_view tmutil = "/usr/bin/tmutil";

/// More bytes than any volume has, so that the amount never limits a purge.
constexpr const char* purgeAmount = "999999999999";
constexpr const char* highestUrgency = "4";

constexpr std::string_view dockerDisk = "~/Library/Containers/com.docker.docker/Data/vms";

}  // namespace

AdvisorService::AdvisorService(Host host) : host_(std::move(host)) {}

std::optional<std::string> AdvisorService::run(std::string_view tool,
                                               const std::vector<std::string>& arguments) const {
    auto ended = runTool(host_.toolPath(tool), arguments, ToolOutput::keep);
    if (!ended || ended->exitStatus != 0) return std::nullopt;
    return std::move(ended->output);
}

std::vector<SimRuntime> AdvisorService::simRuntimes() const {
    const auto output = run(xcrun, {"simctl", "runtime", "list", "-j"});
    const auto records = output ? parseRuntimeRecords(*output) : std::nullopt;
    if (!records) return {};
    return runtimesFrom(*records, deviceNamesByRuntime());
}

DeviceNames AdvisorService::deviceNamesByRuntime() const {
    const auto output = run(xcrun, {"simctl", "list", "devices", "-j"});
    return output ? parseDeviceNames(*output) : DeviceNames();
}

bool AdvisorService::deleteRuntime(const SimRuntime& runtime) const {
    return host_.mayRemove() && run(xcrun, {"simctl", "runtime", "delete", runtime.id});
}

std::int64_t AdvisorService::unavailableSimCount() const {
    const auto output = run(xcrun, {"simctl", "list", "devices", "-j"});
    return output ? countUnavailableDevices(*output) : 0;
}

bool AdvisorService::removeUnavailableSims() const {
    return host_.mayRemove() && run(xcrun, {"simctl", "delete", "unavailable"});
}

std::int64_t AdvisorService::localSnapshotCount() const {
    const auto output = run(tmutil, {"listlocalsnapshots", "/"});
    return output ? countLocalSnapshots(*output) : 0;
}

bool AdvisorService::thinSnapshots() const {
    return host_.mayRemove() &&
           run(tmutil, {"thinlocalsnapshots", "/", purgeAmount, highestUrgency});
}

ByteCount AdvisorService::dockerBytes() const {
    const auto disk = host_.locate(dockerDisk);
    return fileExists(disk) ? allocatedSize(disk) : 0;
}

}  // namespace tidewell
