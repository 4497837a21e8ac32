#include "platform/posix/pipe.h"

namespace tidewell::posix {

std::optional<Pipe> closeOnExecPipe() {
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0) return std::nullopt;
    return Pipe{.reading = Descriptor(ends[0]), .writing = Descriptor(ends[1])};
}

}  // namespace tidewell::posix
