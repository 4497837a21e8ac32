#include "platform/running_applications.h"

#include <algorithm>

#include "platform/files.h"
#include "platform/path_text.h"
#include "platform/posix/process_table.h"

namespace tidewell {

bool isApplicationRunning(const Host& host, std::string_view bundleIdentifier) {
    return std::ranges::any_of(runningApplications(host), [=](const auto& application) {
        return application.bundleIdentifier == bundleIdentifier;
    });
}

bool isProgramRunning(const std::string& path) {
    const auto real = resolvedPath(path);
    return real && std::ranges::any_of(posix::ownProcesses(), [&](const posix::Process& process) {
               return isAtOrBelow(process.executable, *real);
           });
}

}  // namespace tidewell
