#include "platform/own_program.h"

#include "platform/files.h"

namespace tidewell {

std::string ownProgram() {
    return resolvedPath("/proc/self/exe").value_or("");
}

}  // namespace tidewell
