#include "platform/posix/unlinking.h"

#include <unistd.h>

namespace tidewell::posix {

int unlinkNoFolder(int place, const char* name) {
    return ::unlinkat(place, name, 0);
}

}  // namespace tidewell::posix
