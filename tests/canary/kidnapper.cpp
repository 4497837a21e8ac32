#include "kidnapper.h"

#include <poll.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <utility>

namespace tidewell::test {

namespace fs = std::filesystem;

namespace {

/// What several threads have in hand between two looks at where they are.
constexpr std::size_t underWay = 8 * 64;

constexpr const char* takenName = "/taken away";

std::set<std::string> namesIn(const std::string& folder) {
    std::set<std::string> names;
    std::error_code unreadable;
    for (const auto& entry : fs::directory_iterator(folder, unreadable))
        names.insert(entry.path().filename().string());
    return names;
}

}  // namespace

Kidnapper::Kidnapper(std::string prey, const std::string& refuge, Then then)
    : prey_(std::move(prey)),
      refuge_(refuge + takenName),
      then_(then),
      watch_(::inotify_init1(IN_CLOEXEC)) {
    ::inotify_add_watch(watch_, prey_.c_str(), IN_DELETE);
    thread_ = std::thread([this] { lieInWait(); });
}

void Kidnapper::stop() {
    isOver_ = true;
    if (thread_.joinable()) thread_.join();
    if (watch_ >= 0) ::close(std::exchange(watch_, -1));
}

void Kidnapper::lieInWait() {
    constexpr int milliseconds = 20;
    pollfd removal = {watch_, POLLIN, 0};
    while (!isOver_)
        if (::poll(&removal, 1, milliseconds) > 0) return strike();
}

void Kidnapper::strike() {
    std::error_code failed;
    fs::rename(prey_, refuge_, failed);
    if (failed) return;
    if (then_ == Then::bringBack) {
        std::this_thread::yield();
        fs::rename(refuge_, prey_, failed);
    } else {
        taken_ = namesIn(refuge_);
        fs::create_directory(prey_, failed);
        std::ofstream(prey_ + "/another") << "in its place";
    }
    hasStruck_ = !failed && (then_ == Then::bringBack || !taken_.empty());
}

bool Kidnapper::changes(const std::string& path) const {
    return path + takenName == refuge_ || path.find(takenName) != std::string::npos;
}

std::size_t Kidnapper::losses() const {
    const auto left = namesIn(refuge_);
    const auto gone = static_cast<std::size_t>(
        std::ranges::count_if(taken_, [&](const auto& name) { return !left.contains(name); }));
    return gone > underWay ? gone : 0;
}

}  // namespace tidewell::test
