#pragma once

#include <string>

#include "platform/posix/link_free.h"

namespace tidewell::trash {

/// Renames an entry, unless something stands at its new name. 0, or -1 with the reason in errno:
/// EINVAL, ENOSYS, ENOTSUP or EOPNOTSUPP where the system or the file system cannot promise that.
/// Only for trash/exclusive_move.cpp.
int renameExclusively(const link_free::Place& from, int folder, const std::string& name);

}  // namespace tidewell::trash
