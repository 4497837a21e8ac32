#include "platform/running_applications.h"

#include <signal.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>

#include "platform/files.h"
#include "platform/linux/desktop_applications.h"
#include "platform/linux/process_status.h"
#include "platform/posix/bundle_applications.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/process_table.h"

namespace tidewell {

namespace {

constexpr std::size_t longestRollup = 64 * 1024;

}  // namespace

std::vector<RunningApplication> runningApplications(const Host& host) {
    switch (host.system) {
        case System::macOS:
            return posix::bundleApplications(host);
        case System::linux:
            return linux_system::desktopApplications(host);
    }
    return {};
}

ByteCount physicalFootprint(const ProcessIdentity& process) {
    const auto path = "/proc/" + std::to_string(process.id) + "/smaps_rollup";
    const auto text = readFile(path, longestRollup);
    if (!text || posix::startTime(process.id) != process.startTime) return 0;
    const auto present = linux_system::labelledByteCount(*text, "Pss:");
    const auto swapped = linux_system::labelledByteCount(*text, "SwapPss:");
    return present.value_or(0) + swapped.value_or(0);
}

Termination terminate(const ProcessIdentity& process) {
    // The descriptor stands for whatever process has the number now, and for no later one.
    const posix::Descriptor held(static_cast<int>(::syscall(SYS_pidfd_open, process.id, 0)));
    if (!held) return errno == ESRCH ? Termination::alreadyEnded : Termination::refused;
    if (posix::startTime(process.id) != process.startTime) return Termination::alreadyEnded;
    if (::syscall(SYS_pidfd_send_signal, held.get(), SIGTERM, nullptr, 0) == 0)
        return Termination::asked;
    return errno == ESRCH ? Termination::alreadyEnded : Termination::refused;
}

}  // namespace tidewell
