#pragma once

#include <string>

#include "platform/posix/descriptor.h"

namespace tidewell::posix {

enum class LastLink { follow, keep };

/// Whether the way to an entry leads onto a mount that does not answer. errno is ETIMEDOUT then.
bool isOutOfReach(const std::string& path, LastLink lastLink);

/// Opens a folder to be listed, never the one that a link leads to: a slash behind a link's name
/// would follow it. Fails with ETIMEDOUT where nobody answers.
Descriptor openFolder(std::string path);

/// The same for a folder directly inside an open one.
Descriptor openSubfolder(int parent, const std::string& name);

}  // namespace tidewell::posix
