#pragma once

#include <compare>
#include <condition_variable>
#include <mutex>
#include <set>
#include <string>
#include <vector>

namespace tidewell::posix {

/// A mount that another machine or a program stands behind.
struct FarMount {
    std::string number;  ///< which no other mount has
    std::string place;

    auto operator<=>(const FarMount&) const = default;
};

/// All that the process can see; none if the system does not tell.
std::vector<FarMount> farMounts();

/// Asks mounts whether they are there, each on a thread of its own, which may stand in its question
/// for ever: this object lives as long as the process.
class MountQuestions {
 public:
    MountQuestions() = default;
    MountQuestions(const MountQuestions&) = delete;

    /// Those of `mounts` that do not answer in good time. One that was asked before and has not
    /// answered yet is not waited for again.
    std::vector<FarMount> silentAmong(const std::vector<FarMount>& mounts);

 private:
    bool ask(const FarMount& mount);
    bool isOpen(const FarMount& mount) const { return open_.contains(mount); }

    std::mutex mutex_;
    std::condition_variable answered_;
    std::set<FarMount> open_;
};

}  // namespace tidewell::posix
