#include "platform/posix/pipe.h"

#include <fcntl.h>
#include <unistd.h>

namespace tidewell::posix {

/// There is no call that does both at once: programs are started with all but the descriptors that
/// are meant for them closed (see posix/process.cpp).
std::optional<Pipe> closeOnExecPipe() {
    int ends[2];
    if (::pipe(ends) != 0) return std::nullopt;
    Pipe pipe{.reading = Descriptor(ends[0]), .writing = Descriptor(ends[1])};
    for (const int end : ends) ::fcntl(end, F_SETFD, FD_CLOEXEC);
    return pipe;
}

}  // namespace tidewell::posix
