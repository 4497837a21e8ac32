#include "platform/trial_mounts.h"

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace tidewell {

std::string keepMountsToOneself() {
    const int spaces = ::geteuid() == 0 ? CLONE_NEWNS : CLONE_NEWNS | CLONE_NEWUSER;
    if (::unshare(spaces) == 0 && ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0)
        return {};
    return std::string("this user may mount nothing here: ") + std::strerror(errno);
}

bool mountFolder(const std::string& folder, const std::string& place) {
    return ::mount(folder.c_str(), place.c_str(), nullptr, MS_BIND, nullptr) == 0;
}

}  // namespace tidewell
