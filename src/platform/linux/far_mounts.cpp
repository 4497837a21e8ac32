#include "platform/linux/far_mounts.h"

#include <fcntl.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <iterator>
#include <sstream>
#include <string_view>
#include <system_error>
#include <thread>

#include "platform/posix/descriptor.h"

namespace tidewell::linux_system {

namespace {

/// Disks of a server that sleep take some seconds to wake.
constexpr std::chrono::seconds patience{4};

/// File systems that another machine or a program stands behind.
constexpr std::array<std::string_view, 22> farKinds = {
    "9p",    "afs",    "beegfs", "ceph",  "cifs",   "coda",     "fuse", "fuseblk",
    "gfs2",  "gpfs",   "lustre", "ncp",   "ncpfs",  "nfs",      "nfs4", "ocfs2",
    "pvfs2", "prl_fs", "smb3",   "smbfs", "vboxsf", "virtiofs",
};

bool isFar(std::string_view kind) {
    return kind.starts_with("fuse.") || std::ranges::find(farKinds, kind) != farKinds.end();
}

/// A place as the table writes it: what would break a line stands as three octal digits.
std::string unescaped(std::string_view written) {
    constexpr std::string_view digits = "01234567";
    std::string place;
    for (std::size_t at = 0; at < written.size(); ++at) {
        if (written[at] != '\\' || written.size() - at < 4) {
            place += written[at];
            continue;
        }
        int byte = 0;
        for (const char digit : written.substr(at + 1, 3))
            byte = byte * 8 + static_cast<int>(digits.find(digit));
        place += static_cast<char>(byte);
        at += 3;
    }
    return place;
}

/// Read without a question to the mounts themselves.
std::string mountTable() {
    const posix::Descriptor table(::open("/proc/self/mountinfo", O_RDONLY | O_CLOEXEC));
    std::string text;
    char buffer[16 * 1024];
    const auto readOn = [&] { return ::read(table.get(), buffer, sizeof buffer); };
    for (auto length = readOn(); length > 0; length = readOn())
        text.append(buffer, static_cast<std::size_t>(length));
    return text;
}

}  // namespace

/// "36 35 98:0 /part /place options tags... - kind source options"
std::vector<FarMount> farMounts() {
    std::vector<FarMount> found;
    std::istringstream table(mountTable());
    for (std::string line; std::getline(table, line);) {
        std::istringstream words(line);
        std::vector<std::string> fields{std::istream_iterator<std::string>(words), {}};
        const auto dash = std::ranges::find(fields, "-");
        if (fields.size() < 7 || fields.end() - dash < 2 || !isFar(*std::next(dash))) continue;
        found.push_back({.number = fields[0], .place = unescaped(fields[4])});
    }
    return found;
}

std::vector<FarMount> MountQuestions::silentAmong(const std::vector<FarMount>& mounts) {
    std::unique_lock lock(mutex_);
    std::vector<FarMount> asked;
    for (const auto& mount : mounts)
        if (open_.insert(mount).second && ask(mount)) asked.push_back(mount);
    const auto isOpenOne = [this](const auto& mount) { return isOpen(mount); };
    answered_.wait_for(lock, patience, [&] { return std::ranges::none_of(asked, isOpenOne); });
    std::vector<FarMount> silent;
    std::ranges::copy_if(mounts, std::back_inserter(silent), isOpenOne);
    return silent;
}

/// Without a thread nobody can ask: such a mount is taken to be there.
bool MountQuestions::ask(const FarMount& mount) {
    try {
        std::thread([this, mount] {
            struct statfs status;
            (void)::statfs(mount.place.c_str(), &status);  // a refusal is an answer, too
            const std::lock_guard lock(mutex_);
            open_.erase(mount);
            answered_.notify_all();
        }).detach();
        return true;
    } catch (const std::system_error&) {
        open_.erase(mount);
        return false;
    }
}

}  // namespace tidewell::linux_system
