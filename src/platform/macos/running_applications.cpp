#include "platform/running_applications.h"

#include <libproc.h>
#include <signal.h>
#include <sys/resource.h>

#include <cerrno>

#include "platform/macos/frameworks.h"
#include "platform/posix/bundle_applications.h"
#include "platform/posix/process_table.h"

namespace tidewell {

/// Of a machine with desktop entries that lies in a folder nothing can run here.
std::vector<RunningApplication> runningApplications(const Host& host) {
    switch (host.system) {
        case System::macOS:
            return posix::bundleApplications(host);
        case System::linux:
            return {};
    }
    return {};
}

ByteCount physicalFootprint(const ProcessIdentity& process) {
    rusage_info_v4 usage{};
    const int result =
        ::proc_pid_rusage(process.id, RUSAGE_INFO_V4, reinterpret_cast<rusage_info_t*>(&usage));
    if (result != 0 || posix::startTime(process.id) != process.startTime) return 0;
    return static_cast<ByteCount>(usage.ri_phys_footprint);
}

/// An application is asked as its own menu would, so that it can ask what to do with unsaved work.
/// What is none gets the signal.
Termination terminate(const ProcessIdentity& process) {
    if (posix::startTime(process.id) != process.startTime) return Termination::alreadyEnded;
    if (macos_system::askApplicationToQuit(process.id)) return Termination::asked;
    if (::kill(process.id, SIGTERM) == 0) return Termination::asked;
    return errno == ESRCH ? Termination::alreadyEnded : Termination::refused;
}

}  // namespace tidewell
