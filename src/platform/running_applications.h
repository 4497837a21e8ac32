#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/byte_count.h"
#include "platform/host.h"

namespace tidewell {

/// A process that stays the same one for good: its number may be given to another after its end,
/// its number and its start may not.
struct ProcessIdentity {
    std::int32_t id = 0;
    std::uint64_t startTime = 0;  ///< in the system's own ticks since its start

    bool operator==(const ProcessIdentity&) const = default;
};

/// Whether people see it as an application, or it works for others in the background.
enum class ActivationPolicy { regular, background };

struct RunningApplication {
    ProcessIdentity process;
    std::optional<std::string> name;
    std::optional<std::string> bundleIdentifier;
    std::optional<std::string> bundlePath;  ///< absent for an application that is no bundle
    ActivationPolicy activationPolicy = ActivationPolicy::regular;
    std::string iconFile = {};  ///< its picture's path; empty for none, and bundles
    /// All of it, `process` first, in the order of their start; empty where only that one counts.
    std::vector<ProcessIdentity> processes = {};
};

/// The user's applications in the order in which they were started. On macOS machines one for each
/// bundle below the host's root whose executable runs, and, if the root is "/", one for each
/// installed desktop entry whose executable runs; on Linux machines one for each desktop entry,
/// flatpak and snap of which any process runs. Processes that end meanwhile, and those of other
/// users, are left out. Any thread.
std::vector<RunningApplication> runningApplications(const Host& host);

/// Whether an application of this identifier runs, in the background or not. Any thread.
bool isApplicationRunning(const Host& host, std::string_view bundleIdentifier);

/// Whether a process of the user runs a program that lies at a path or below it, links resolved.
/// Any thread.
bool isProgramRunning(const std::string& path);

/// The memory that a process would give back at its end, shared pages by its share, swapped pages
/// included; 0 if it cannot be read. Any thread.
ByteCount physicalFootprint(const ProcessIdentity& process);

enum class Termination { alreadyEnded, asked, refused };

/// Asks a process politely to end. Another process that has its number by now is never asked. Any
/// thread.
Termination terminate(const ProcessIdentity& process);

}  // namespace tidewell
