#pragma once

#include <atomic>
#include <string>
#include <thread>
#include <vector>

namespace tidewell::test {

/// Other programs that work in the same folders while a clean runs: they add, let grow and move
/// files, and swap a folder for a link to a precious one and back, as fast as they can. Runs from
/// its making to its end.
class Adversary {
 public:
    /// `folders` are real ones, of which all that is in them may go; `precious` is what the links
    /// lead to.
    Adversary(unsigned seed, std::vector<std::string> folders, std::string precious);
    Adversary(const Adversary&) = delete;
    Adversary& operator=(const Adversary&) = delete;
    ~Adversary();

    /// How often a link stood where a folder had been.
    int swaps() const { return swaps_; }

 private:
    void work(unsigned seed);
    void swap(const std::string& folder);

    const std::vector<std::string> folders_;
    const std::string precious_;
    std::atomic<bool> isOver_ = false;
    std::atomic<int> swaps_ = 0;
    std::thread thread_;
};

}  // namespace tidewell::test
