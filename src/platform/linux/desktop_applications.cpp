#include "platform/linux/desktop_applications.h"

#include <algorithm>

#include "platform/desktop_entry.h"
#include "platform/files.h"
#include "platform/icon_theme.h"
#include "platform/linux/application_groups.h"
#include "platform/path_text.h"
#include "platform/posix/process_table.h"

namespace tidewell::linux_system {

namespace {

constexpr std::size_t longestScript = 64 * 1024;

/// What runs in the end when an entry is started; empty if that is a program for running others.
std::string executableBehind(const Host& host, const DesktopEntry& entry) {
    const auto words = commandWords(entry.exec);
    auto program = words.empty() ? std::nullopt : namedProgram(host, words.front());
    const auto text = program ? readFile(*program, longestScript) : std::nullopt;
    const auto started = text ? programStartedBy(*program, *text) : std::nullopt;
    if (started) program = namedProgram(host, *started);
    return program && !isLauncher(*program) ? *program : std::string();
}

std::vector<KnownApplication> knownApplications(const Host& host) {
    auto entries = applicationEntries(host);
    // Of several that start one program people mean the one with the fewest words.
    std::ranges::stable_sort(
        entries, {}, [](const EntryFile& file) { return commandWords(file.entry.exec).size(); });
    std::vector<KnownApplication> known;
    for (const auto& [id, path, entry] : entries) {
        if (entry.isHidden) continue;
        known.push_back({.id = id,
                         .name = entry.name.value_or(id),
                         .executable = executableBehind(host, entry),
                         .activationPolicy = entry.isShownInMenus ? ActivationPolicy::regular
                                                                  : ActivationPolicy::background,
                         .icon = entry.icon});
    }
    return known;
}

}  // namespace

std::vector<RunningApplication> desktopApplications(const Host& host) {
    std::vector<ProcessFacts> processes;
    for (const auto& process : posix::ownProcesses())
        if (isBelow(process.executable, host.root))
            processes.push_back({.identity = process.identity,
                                 .parent = process.parent,
                                 .executable = process.executable,
                                 .group = posix::groupedApplication(process.identity.id)});
    auto applications = groupedApplications(processes, knownApplications(host));
    const auto folders = iconFolders(host);
    for (auto& application : applications)
        application.iconFile = tidewell::iconFile(host, application.iconFile, folders).value_or("");
    return applications;
}

}  // namespace tidewell::linux_system
