#include "platform/posix/far_mounts.h"

#include <sys/statvfs.h>

#include <algorithm>
#include <chrono>
#include <iterator>
#include <system_error>
#include <thread>

namespace tidewell::posix {

namespace {

/// Disks of a server that sleep take some seconds to wake.
constexpr std::chrono::seconds patience{4};

}  // namespace

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
            struct statvfs status;
            (void)::statvfs(mount.place.c_str(), &status);  // a refusal is an answer, too
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

}  // namespace tidewell::posix
