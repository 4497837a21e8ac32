#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/running_applications.h"

namespace tidewell::posix {

/// A process whose program is known.
struct Process {
    ProcessIdentity identity;
    std::int32_t parent = 0;
    std::string executable;  ///< its real location, also if the file has been replaced meanwhile
};

/// The user's own processes in the order of their start. Those that end while they are read are
/// left out, and so are those whose program is hidden from the user.
std::vector<Process> ownProcesses();

/// The words that a process was started with, behind its own name; the first 64 kilobytes of them.
/// None once it has ended.
std::vector<std::string> argumentsOf(std::int32_t id);

/// Where what the process has open lies by now, as the system tells it: files and folders, and
/// words for what lies nowhere. None once it has ended.
std::vector<std::string> openFilesOf(std::int32_t id);

/// Absent once the process has ended, also while its parent has not taken note of it.
std::optional<std::uint64_t> startTime(std::int32_t id);

/// When a process started, in seconds since 1970, as near as the clocks tell.
double startedAt(const ProcessIdentity& process);

}  // namespace tidewell::posix
