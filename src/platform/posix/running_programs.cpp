#include "platform/running_programs.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <cstdint>

#include "platform/desktop_entry.h"
#include "platform/files.h"
#include "platform/path_text.h"
#include "platform/posix/application_group.h"
#include "platform/posix/process_table.h"
#include "platform/posix/program_signs.h"

namespace tidewell {

namespace {

using posix::GroupedApplication;
using posix::Packaging;
using posix::Process;

/// A process's start is known to the tick, a file's time to the second.
constexpr double clockSlack = 3;  // seconds

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
    constexpr std::size_t longest = 255;
    char name[longest + 1] = {};
    return ::gethostname(name, sizeof name - 1) == 0 ? name : std::string();
}

/// The number of a process that has ended may be another's by now, which then is younger than the
/// lock.
bool wasThereFor(const std::string& lock, const Process& holder) {
    struct stat status;
    return ::lstat(lock.c_str(), &status) == 0 &&
           posix::startedAt(holder.identity) <= static_cast<double>(status.st_mtime) + clockSlack;
}

bool hasFileOpenIn(const std::vector<std::string>& folders, std::int32_t process) {
    if (folders.empty()) return false;
    const auto files = posix::openFilesOf(process);
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
           posix::isExecutableOf(program, process.executable, arguments) ||
           (isLauncher(process.executable) && hasFileOpenIn(program.folders, process.identity.id));
}

SeenProcess look(Process process) {
    const auto id = process.identity.id;
    SeenProcess seen{.process = std::move(process), .group = {}, .arguments = {}};
    seen.group = posix::groupedApplication(id);
    if (isLauncher(seen.process.executable)) seen.arguments = posix::argumentsOf(id);
    return seen;
}

}  // namespace

struct RunningPrograms::Seen {
    std::string hostName;
    std::vector<SeenProcess> processes;

    bool isHeld(const std::string& lock) const {
        const auto holder = posix::lockHolder(linkText(lock), hostName);
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
    for (auto& process : posix::ownProcesses())
        if (isBelow(process.executable, host.root))
            seen.processes.push_back(look(std::move(process)));
    seen_ = std::make_shared<const Seen>(std::move(seen));
}

OpenFiles::OpenFiles(const Host& host) {
    for (const auto& process : posix::ownProcesses())
        if (process.identity.id != ::getpid() && isBelow(process.executable, host.root))
            std::ranges::move(posix::openFilesOf(process.identity.id), std::back_inserter(paths_));
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
