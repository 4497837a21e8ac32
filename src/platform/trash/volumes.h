#pragma once

#include <string>
#include <vector>

namespace tidewell::trash {

/// Where disks of this machine are mounted, at or below `root`; each once. Network folders and what
/// a program shows as a disk are left out, since one that is silent would hold whoever asks it.
std::vector<std::string> mountedDisks(const std::string& root);

}  // namespace tidewell::trash
