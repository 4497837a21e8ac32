#include "platform/posix/process_table.h"

#include <libproc.h>
#include <sys/proc_info.h>
#include <sys/sysctl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <tuple>

#include "platform/posix/application_group.h"

namespace tidewell::posix {

namespace {

constexpr std::uint64_t microsecondsInSecond = 1'000'000;

std::optional<proc_bsdinfo> statusOf(std::int32_t id) {
    constexpr std::uint32_t zombie = 5;
    proc_bsdinfo status{};
    const int filled = ::proc_pidinfo(id, PROC_PIDTBSDINFO, 0, &status, sizeof status);
    if (filled != static_cast<int>(sizeof status) || status.pbi_status == zombie)
        return std::nullopt;
    return status;
}

std::uint64_t startOf(const proc_bsdinfo& status) {
    return status.pbi_start_tvsec * microsecondsInSecond + status.pbi_start_tvusec;
}

std::optional<Process> readProcess(std::int32_t id) {
    std::array<char, PROC_PIDPATHINFO_MAXSIZE> path{};
    const int length = ::proc_pidpath(id, path.data(), path.size());
    const auto status = length > 0 ? statusOf(id) : std::nullopt;
    if (!status || status->pbi_uid != ::getuid()) return std::nullopt;
    return Process{.identity = {.id = id, .startTime = startOf(*status)},
                   .parent = static_cast<std::int32_t>(status->pbi_ppid),
                   .executable = std::string(path.data(), static_cast<std::size_t>(length))};
}

std::vector<pid_t> processIds() {
    constexpr std::size_t spare = 64;  // started between the two calls
    const int size = ::proc_listpids(PROC_UID_ONLY, ::getuid(), nullptr, 0);
    std::vector<pid_t> ids(static_cast<std::size_t>(std::max(size, 0)) / sizeof(pid_t) + spare);
    const int filled = ::proc_listpids(PROC_UID_ONLY, ::getuid(), ids.data(),
                                       static_cast<int>(ids.size() * sizeof(pid_t)));
    ids.resize(static_cast<std::size_t>(std::max(filled, 0)) / sizeof(pid_t));
    return ids;
}

/// The count of words, the program's path, zeros, and then each word with a zero behind it.
std::vector<std::string> wordsOf(const std::string& text, std::int32_t count) {
    std::vector<std::string> words;
    auto at = std::min(text.find('\0', sizeof count), text.size());
    at = std::min(text.find_first_not_of('\0', at), text.size());
    for (; count > 0 && at < text.size(); --count) {
        const auto end = std::min(text.find('\0', at), text.size());
        words.push_back(text.substr(at, end - at));
        at = end + 1;
    }
    if (!words.empty()) words.erase(words.begin());
    return words;
}

std::optional<std::string> fileOf(std::int32_t process, const proc_fdinfo& descriptor) {
    if (descriptor.proc_fdtype != PROX_FDTYPE_VNODE) return std::nullopt;
    vnode_fdinfowithpath file{};
    const int filled =
        ::proc_pidfdinfo(process, descriptor.proc_fd, PROC_PIDFDVNODEPATHINFO, &file, sizeof file);
    if (filled != static_cast<int>(sizeof file)) return std::nullopt;
    return std::string(file.pvip.vip_path,
                       ::strnlen(file.pvip.vip_path, sizeof file.pvip.vip_path));
}

}  // namespace

std::vector<Process> ownProcesses() {
    std::vector<Process> processes;
    for (const auto id : processIds())
        if (auto process = readProcess(id)) processes.push_back(std::move(*process));
    std::ranges::sort(processes, {}, [](const Process& process) {
        return std::tuple(process.identity.startTime, process.identity.id);
    });
    return processes;
}

std::vector<std::string> argumentsOf(std::int32_t id) {
    constexpr std::size_t longest = 64 * 1024;
    int name[] = {CTL_KERN, KERN_PROCARGS2, id};
    std::string text(longest, '\0');
    std::size_t size = text.size();
    std::int32_t count = 0;
    if (::sysctl(name, 3, text.data(), &size, nullptr, 0) != 0 || size < sizeof count) return {};
    text.resize(size);
    std::memcpy(&count, text.data(), sizeof count);
    return wordsOf(text, count);
}

std::vector<std::string> openFilesOf(std::int32_t id) {
    const int size = ::proc_pidinfo(id, PROC_PIDLISTFDS, 0, nullptr, 0);
    if (size <= 0) return {};
    std::vector<proc_fdinfo> descriptors(static_cast<std::size_t>(size) / sizeof(proc_fdinfo));
    const int filled = ::proc_pidinfo(id, PROC_PIDLISTFDS, 0, descriptors.data(), size);
    descriptors.resize(static_cast<std::size_t>(std::max(filled, 0)) / sizeof(proc_fdinfo));
    std::vector<std::string> files;
    for (const auto& descriptor : descriptors)
        if (auto file = fileOf(id, descriptor)) files.push_back(std::move(*file));
    return files;
}

std::optional<std::uint64_t> startTime(std::int32_t id) {
    const auto status = statusOf(id);
    return status ? std::optional(startOf(*status)) : std::nullopt;
}

double startedAt(const ProcessIdentity& process) {
    return static_cast<double>(process.startTime) / static_cast<double>(microsecondsInSecond);
}

std::optional<GroupedApplication> groupedApplication(std::int32_t) {
    return std::nullopt;
}

}  // namespace tidewell::posix
