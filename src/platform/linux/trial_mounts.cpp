#include "platform/trial_mounts.h"

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace tidewell {

namespace {

/// No process with several threads may leave for a space of its own, and one that probed a mount
/// may still be on its way out.
bool leaveFor(int spaces) {
    for (int left = 100; left > 0; --left) {
        if (::unshare(spaces) == 0) return true;
        if (errno != EINVAL) return false;
        ::usleep(10'000);
    }
    return false;
}

}  // namespace

std::string keepMountsToOneself() {
    const int spaces = ::geteuid() == 0 ? CLONE_NEWNS : CLONE_NEWNS | CLONE_NEWUSER;
    if (leaveFor(spaces) && ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0)
        return {};
    return std::string("this user may mount nothing here: ") + std::strerror(errno);
}

bool mountFolder(const std::string& folder, const std::string& place) {
    return ::mount(folder.c_str(), place.c_str(), nullptr, MS_BIND, nullptr) == 0;
}

}  // namespace tidewell
