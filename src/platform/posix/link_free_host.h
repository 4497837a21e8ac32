#pragma once

#include <string>

#include "platform/posix/descriptor.h"

namespace tidewell::link_free {

// What link_free.h is made of where the system has better than one component after the other. Only
// for posix/link_free.cpp.

/// How a folder is opened as a place to work from.
extern const int placeFlags;

/// Each in a single call in which no link can be followed; the second with EXDEV where another file
/// system is mounted. ENOSYS or EPERM where there is no such call.
posix::Descriptor openPlaceAtOnce(const std::string& absolutePath);
posix::Descriptor openSubfolderAtOnce(int parent, const std::string& name);

}  // namespace tidewell::link_free
