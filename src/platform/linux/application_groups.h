#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/control_group.h"
#include "platform/running_applications.h"

namespace tidewell::linux_system {

/// An installed application as its desktop entry has it.
struct KnownApplication {
    std::string id;
    std::string name;
    std::string executable;  ///< the real location of what it starts; empty if that says nothing
    ActivationPolicy activationPolicy = ActivationPolicy::regular;
    std::string icon = {};  ///< as its entry names it
};

/// What is asked of a process to tell whose it is.
struct ProcessFacts {
    ProcessIdentity identity;
    std::int32_t parent = 0;
    std::string executable;
    std::optional<GroupedApplication> group;
};

/// Sorts processes, given in the order of their start, into applications, given by their first
/// process, with their icons as the entries name them. A process belongs to the application that
/// the desktop started its group for, else to the one whose executable it runs, else to its
/// parent's. A flatpak or snap without an entry goes by its own name; any other group without one
/// works in the background.
std::vector<RunningApplication> groupedApplications(const std::vector<ProcessFacts>& processes,
                                                    const std::vector<KnownApplication>& known);

/// What a shell script that starts a program ends in: the program of its last "exec", its plain
/// variables put in, and the script's own folder for those that are worked out: an absolute path or
/// a bare name. Absent for what is no such script; nothing of it is run. `script` is the script's
/// real location.
std::optional<std::string> programStartedBy(std::string_view script, std::string_view text);

}  // namespace tidewell::linux_system
