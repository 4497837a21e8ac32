#include "platform/posix/process_table.h"

#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <tuple>

#include "platform/files.h"
#include "platform/linux/number_in.h"
#include "platform/linux/process_status.h"
#include "platform/path_text.h"
#include "platform/posix/descriptor.h"

namespace tidewell::posix {

namespace {

constexpr std::size_t longestStatus = 64 * 1024;
constexpr std::size_t longestArguments = 64 * 1024;

/// What is longer is cut, and still known.
std::string beginningOf(const std::string& path, std::size_t most) {
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    std::string bytes(most, '\0');
    std::size_t length = 0;
    while (length < most) {
        const auto count =
            retrying([&] { return ::read(file.get(), bytes.data() + length, most - length); });
        if (count <= 0) break;
        length += static_cast<std::size_t>(count);
    }
    bytes.resize(length);
    return bytes;
}

std::string processFolder(std::int32_t id) {
    return "/proc/" + std::to_string(id);
}

double secondsOf(const timespec& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

std::optional<linux_system::ProcessStatus> readStatus(std::int32_t id) {
    const auto line = readFile(processFolder(id) + "/stat", longestStatus);
    const auto status = line ? linux_system::parseProcessStatus(*line) : std::nullopt;
    constexpr std::string_view ended = "ZXx";
    if (!status || ended.find(status->state) != std::string_view::npos) return std::nullopt;
    return status;
}

bool belongsToUser(std::int32_t id) {
    struct stat status;
    return ::stat(processFolder(id).c_str(), &status) == 0 && status.st_uid == ::getuid();
}

/// A program whose file was replaced by an update goes on running under its old name.
std::string withoutDeletionMark(std::string path) {
    constexpr std::string_view mark = " (deleted)";
    if (path.ends_with(mark) && !fileExists(path)) path.resize(path.size() - mark.size());
    return path;
}

std::optional<std::string> executableOf(std::int32_t id) {
    char path[PATH_MAX];
    const auto link = processFolder(id) + "/exe";
    const auto length = ::readlink(link.c_str(), path, sizeof path);
    if (length <= 0 || path[0] != '/') return std::nullopt;
    return withoutDeletionMark(std::string(path, static_cast<std::size_t>(length)));
}

std::optional<Process> readProcess(std::int32_t id) {
    if (!belongsToUser(id)) return std::nullopt;
    auto executable = executableOf(id);
    const auto status = executable ? readStatus(id) : std::nullopt;
    if (!status) return std::nullopt;
    return Process{.identity = {.id = id, .startTime = status->startTime},
                   .parent = status->parent,
                   .executable = std::move(*executable)};
}

}  // namespace

std::vector<Process> ownProcesses() {
    std::vector<Process> processes;
    const auto names = folderNames("/proc");
    if (!names) return processes;
    for (const auto& name : *names) {
        const auto id = linux_system::numberIn<std::int32_t>(name);
        auto process = id ? readProcess(*id) : std::nullopt;
        if (process) processes.push_back(std::move(*process));
    }
    std::ranges::sort(processes, {}, [](const Process& process) {
        return std::tuple(process.identity.startTime, process.identity.id);
    });
    return processes;
}

std::vector<std::string> argumentsOf(std::int32_t id) {
    const auto text = beginningOf(processFolder(id) + "/cmdline", longestArguments);
    std::vector<std::string> words;
    for (auto rest = std::string_view(text); !rest.empty();) {
        const auto end = std::min(rest.find('\0'), rest.size());
        words.emplace_back(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    if (!words.empty()) words.erase(words.begin());
    return words;
}

std::vector<std::string> openFilesOf(std::int32_t id) {
    const auto descriptors = processFolder(id) + "/fd";
    std::vector<std::string> files;
    for (const auto& name : folderNames(descriptors).value_or(std::vector<std::string>{})) {
        char path[PATH_MAX];
        const auto length = ::readlink(joinPath(descriptors, name).c_str(), path, sizeof path);
        if (length > 0) files.emplace_back(path, static_cast<std::size_t>(length));
    }
    return files;
}

std::optional<std::uint64_t> startTime(std::int32_t id) {
    const auto status = readStatus(id);
    return status ? std::optional(status->startTime) : std::nullopt;
}

double startedAt(const ProcessIdentity& process) {
    timespec now{};
    timespec sinceStart{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    ::clock_gettime(CLOCK_BOOTTIME, &sinceStart);
    const auto ticks = static_cast<double>(process.startTime);
    return secondsOf(now) - secondsOf(sinceStart) +
           ticks / static_cast<double>(::sysconf(_SC_CLK_TCK));
}

}  // namespace tidewell::posix
