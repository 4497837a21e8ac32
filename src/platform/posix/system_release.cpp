#include <sys/utsname.h>

#include "platform/removal_lock.h"

namespace tidewell {

std::string systemRelease() {
    utsname name{};
    if (::uname(&name) != 0) return {};
    return std::string(name.sysname) + " " + name.release;
}

}  // namespace tidewell
