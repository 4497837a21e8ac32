#pragma once

#include <optional>

#include "platform/posix/descriptor.h"

namespace tidewell::posix {

struct Pipe {
    Descriptor reading;
    Descriptor writing;
};

/// A pipe whose ends no other program inherits, also if another thread starts one at this very
/// moment: a stranger that holds the writing end would keep the reader waiting for its end.
std::optional<Pipe> closeOnExecPipe();

}  // namespace tidewell::posix
