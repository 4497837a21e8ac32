#include "platform/own_program.h"

#include <mach-o/dyld.h>

#include <cstdint>

#include "platform/files.h"
#include "platform/system.h"

namespace tidewell {

std::string ownProgram() {
    std::uint32_t size = 0;
    ::_NSGetExecutablePath(nullptr, &size);
    std::string path(size, '\0');
    if (::_NSGetExecutablePath(path.data(), &size) != 0) return {};
    return resolvedPath(path.c_str()).value_or("");
}

System ownSystem() {
    return System::macOS;
}

}  // namespace tidewell
