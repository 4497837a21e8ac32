#include "platform/environment.h"

#include <cstdlib>

namespace tidewell {

std::string environmentValue(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

}  // namespace tidewell
