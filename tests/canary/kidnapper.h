#pragma once

#include <atomic>
#include <set>
#include <string>
#include <thread>

namespace tidewell::test {

/// Another program that takes a folder away, or locks it, as soon as something in it is removed.
/// Waits for its moment from its making to its end.
class Kidnapper {
 public:
    enum class Deed {
        takeAway,  ///< to where nothing may go, and another folder stands in its place
        takeAwayAndBack,
        lock,  ///< until the end, so that nobody but the superuser can read or change it
    };

    /// `prey` holds files and nothing else; `refuge` is a folder on the same disk.
    Kidnapper(std::string prey, const std::string& refuge, Deed deed);
    Kidnapper(const Kidnapper&) = delete;
    Kidnapper& operator=(const Kidnapper&) = delete;
    ~Kidnapper() { stop(); }

    void stop();
    /// After the end: whether that happened when a part of it was gone.
    bool hasStruck() const { return hasStruck_; }
    bool hasLocked() const { return hasStruck_ && deed_ == Deed::lock; }
    /// After the end: how much of it went after that, beyond what was under way at that moment. Of
    /// what was brought back all may go.
    std::size_t losses() const;
    /// Whether an entry is the refuge, or what was taken there, by whatever name a mount shows it.
    bool changes(const std::string& path) const;

 private:
    void lieInWait();

    bool strike();
    bool takeAway();
    bool takeAwayAndBack() const;

    const std::string prey_;
    const std::string refuge_;
    const Deed deed_;
    int watch_ = -1;
    bool hasStruck_ = false;
    std::set<std::string> taken_;  ///< the names that were left when it was taken for good
    std::atomic<bool> isOver_ = false;
    std::thread thread_;
};

}  // namespace tidewell::test
