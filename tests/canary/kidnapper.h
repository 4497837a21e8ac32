#pragma once

#include <atomic>
#include <set>
#include <string>
#include <thread>

namespace tidewell::test {

/// Another program that takes a folder away while it is being emptied, to where nothing may go, and
/// puts another one in its place. Waits for its moment from its making to its end.
class Kidnapper {
 public:
    /// `prey` holds `size` files and nothing else; `refuge` is a folder of the user's own on the
    /// same disk. Nothing happens without a prey.
    Kidnapper(std::string prey, std::size_t size, const std::string& refuge);
    Kidnapper(const Kidnapper&) = delete;
    Kidnapper& operator=(const Kidnapper&) = delete;
    ~Kidnapper() { stop(); }

    void stop();
    /// After the end: whether it was taken away when a part of it was gone.
    bool hasStruck() const { return !taken_.empty(); }
    /// After the end: how much of it went after that, beyond what was under way at that moment.
    std::size_t losses() const;
    /// What the folder is called in its refuge, of which a mount may show another name.
    static constexpr const char* takenName = "/taken away";

 private:
    void lieInWait();

    const std::string prey_;
    const std::size_t size_;
    const std::string refuge_;
    std::set<std::string> taken_;  ///< the names that were left when it was taken
    std::atomic<bool> isOver_ = false;
    std::thread thread_;
};

}  // namespace tidewell::test
