#pragma once

#include <sys/resource.h>

#include <cstddef>
#include <limits>

namespace tidewell::posix {

/// How many descriptors the process may have open.
inline std::size_t descriptorLimit() {
    struct rlimit limit;
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY)
        return std::numeric_limits<std::size_t>::max();
    return limit.rlim_cur;
}

}  // namespace tidewell::posix
