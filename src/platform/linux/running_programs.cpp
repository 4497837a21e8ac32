#include "platform/running_programs.h"

#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <cstdint>

#include "platform/desktop_entry.h"
#include "platform/files.h"
#include "platform/linux/control_group.h"
#include "platform/linux/process_table.h"
#include "platform/linux/program_signs.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

using linux_system::GroupedApplication;
using linux_system::Packaging;
using linux_system::Process;

/// A process's start is known to the tick, a file's time to the second on some disks.
constexpr double clockSlack = 2;  // seconds

/// A process, and what else is asked of it.
struct SeenProcess {
    Process process;
    std::optional<GroupedApplication> group;
    std::vector<std::string> arguments;  ///< of one that runs other programs
};

std::string linkText(const std::string& link) {
    char text[PATH_MAX];
    const auto length = ::readlink(link.c_str(), text, sizeof text);
    return length <= 0 ? std::string() : std::string(text, static_cast<std::size_t>(length));
}

std::string hostName() {
    char name[HOST_NAME_MAX + 1] = {};
    return ::gethostname(name, sizeof name - 1) == 0 ? name : std::string();
}

double secondsOf(const timespec& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

/// In seconds since 1970, as near as the two clocks tell.
double startedAt(const Process& process) {
    timespec now{};
    timespec sinceStart{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    ::clock_gettime(CLOCK_BOOTTIME, &sinceStart);
    const auto ticks = static_cast<double>(process.identity.startTime);
    return secondsOf(now) - secondsOf(sinceStart) +
           ticks / static_cast<double>(::sysconf(_SC_CLK_TCK));
}

/// The number of a process that has ended may be another's by now, which then is younger than the
/// lock.
bool wasThereFor(const std::string& lock, const Process& holder) {
    struct stat status;
    return ::lstat(lock.c_str(), &status) == 0 &&
           startedAt(holder) <= secondsOf(status.st_mtim) + clockSlack;
}

bool hasFileOpenIn(const std::vector<std::string>& folders, std::int32_t process) {
    if (folders.empty()) return false;
    const auto files = linux_system::openFilesOf(process);
    return std::ranges::any_of(files, [&](const std::string& file) {
        return std::ranges::any_of(
            folders, [&file](const std::string& folder) { return isBelow(file, folder); });
    });
}

bool isIn(const std::optional<GroupedApplication>& group, Packaging packaging,
          const std::vector<std::string>& ids) {
    return group && group->packaging == packaging && std::ranges::find(ids, group->id) != ids.end();
}

bool isOf(const ProgramSigns& program, const SeenProcess& seen) {
    const auto& [process, group, arguments] = seen;
    return isIn(group, Packaging::flatpak, program.flatpaks) ||
           isIn(group, Packaging::snap, program.snaps) ||
           linux_system::isExecutableOf(program, process.executable, arguments) ||
           (isLauncher(process.executable) && hasFileOpenIn(program.folders, process.identity.id));
}

SeenProcess look(Process process) {
    const auto id = process.identity.id;
    SeenProcess seen{.process = std::move(process), .group = {}, .arguments = {}};
    seen.group = linux_system::groupedApplication(id);
    if (isLauncher(seen.process.executable)) seen.arguments = linux_system::argumentsOf(id);
    return seen;
}

}  // namespace

struct RunningPrograms::Seen {
    std::string hostName;
    std::vector<SeenProcess> processes;

    bool isHeld(const std::string& lock) const {
        const auto holder = linux_system::lockHolder(linkText(lock), hostName);
        return holder && std::ranges::any_of(processes, [&](const SeenProcess& seen) {
                   return seen.process.identity.id == *holder && wasThereFor(lock, seen.process);
               });
    }
    bool runs(const ProgramSigns& program) const {
        return std::ranges::any_of(processes,
                                   [&](const SeenProcess& seen) { return isOf(program, seen); }) ||
               std::ranges::any_of(program.lockFiles,
                                   [this](const std::string& lock) { return isHeld(lock); });
    }
};

RunningPrograms::RunningPrograms(const Host& host) {
    Seen seen{.hostName = hostName(), .processes = {}};
    for (auto& process : linux_system::ownProcesses())
        if (isBelow(process.executable, host.root))
            seen.processes.push_back(look(std::move(process)));
    seen_ = std::make_shared<const Seen>(std::move(seen));
}

OpenFiles::OpenFiles(const Host& host) {
    for (const auto& process : linux_system::ownProcesses())
        if (process.identity.id != ::getpid() && isBelow(process.executable, host.root))
            std::ranges::move(linux_system::openFilesOf(process.identity.id),
                              std::back_inserter(paths_));
}

bool OpenFiles::areIn(const std::string& folder) const {
    return std::ranges::any_of(
        paths_, [&folder](const std::string& path) { return isAtOrBelow(path, folder); });
}

std::optional<std::string> RunningPrograms::firstRunning(
    const std::vector<ProgramSigns>& programs) const {
    const auto running = std::ranges::find_if(
        programs, [this](const ProgramSigns& program) { return seen_->runs(program); });
    return running == programs.end() ? std::nullopt : std::optional(running->name);
}

}  // namespace tidewell
