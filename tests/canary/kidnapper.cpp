#include "kidnapper.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <utility>

namespace tidewell::test {

namespace fs = std::filesystem;

namespace {

/// What several threads have in hand between two looks at where they are.
constexpr std::size_t underWay = 8 * 64;

std::set<std::string> namesIn(const std::string& folder) {
    std::set<std::string> names;
    std::error_code unreadable;
    for (const auto& entry : fs::directory_iterator(folder, unreadable))
        names.insert(entry.path().filename().string());
    return names;
}

}  // namespace

Kidnapper::Kidnapper(std::string prey, std::size_t size, const std::string& refuge)
    : prey_(std::move(prey)),
      size_(size),
      refuge_(refuge + takenName),
      thread_([this] { lieInWait(); }) {}

void Kidnapper::stop() {
    isOver_ = true;
    if (thread_.joinable()) thread_.join();
}

void Kidnapper::lieInWait() {
    while (!isOver_ && !prey_.empty()) {
        // The first files go first or last, by the order of the disk: the number tells more.
        if (namesIn(prey_).size() >= size_) continue;
        std::error_code failed;
        fs::rename(prey_, refuge_, failed);
        if (failed) return;
        taken_ = namesIn(refuge_);
        fs::create_directory(prey_, failed);
        std::ofstream(prey_ + "/another") << "in its place";
        return;
    }
}

std::size_t Kidnapper::losses() const {
    const auto left = namesIn(refuge_);
    const auto gone = static_cast<std::size_t>(
        std::ranges::count_if(taken_, [&](const auto& name) { return !left.contains(name); }));
    return gone > underWay ? gone : 0;
}

}  // namespace tidewell::test
