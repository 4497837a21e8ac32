#pragma once

#include <string>

#include "deepscan/knowledge/knowledge.h"

namespace tidewell {

/// Whether a file's first bytes say what the sign asks for. True for none; else false for what is
/// missing, unreadable, a link or no file.
bool hasSign(const std::string& path, InstallerSign sign);

}  // namespace tidewell
