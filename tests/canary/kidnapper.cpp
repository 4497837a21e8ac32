#include "kidnapper.h"

#include <poll.h>
#include <sys/inotify.h>
#include <sys/stat.h>
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

Kidnapper::Kidnapper(std::string prey, const std::string& refuge, Deed deed)
    : prey_(std::move(prey)),
      refuge_(refuge + takenName),
      deed_(deed),
      watch_(::inotify_init1(IN_CLOEXEC)) {
    ::inotify_add_watch(watch_, prey_.c_str(), IN_DELETE);
    thread_ = std::thread([this] { lieInWait(); });
}

void Kidnapper::stop() {
    isOver_ = true;
    if (thread_.joinable()) thread_.join();
    if (watch_ < 0) return;
    ::close(std::exchange(watch_, -1));
    if (deed_ == Deed::lock) ::chmod(prey_.c_str(), S_IRWXU);
}

void Kidnapper::lieInWait() {
    constexpr int milliseconds = 20;
    pollfd removal = {watch_, POLLIN, 0};
    while (!isOver_ && !hasStruck_)
        if (::poll(&removal, 1, milliseconds) > 0 && !(hasStruck_ = strike())) return;
}

bool Kidnapper::strike() {
    switch (deed_) {
        case Deed::takeAway:
            return takeAway();
        case Deed::takeAwayAndBack:
            return takeAwayAndBack();
        case Deed::lock:
            return ::chmod(prey_.c_str(), 0) == 0;
    }
    return false;
}

bool Kidnapper::takeAway() {
    std::error_code failed;
    fs::rename(prey_, refuge_, failed);
    if (failed) return false;
    taken_ = namesIn(refuge_);
    fs::create_directory(prey_, failed);
    std::ofstream(prey_ + "/another") << "in its place";
    return !taken_.empty();
}

bool Kidnapper::takeAwayAndBack() const {
    std::error_code failed;
    fs::rename(prey_, refuge_, failed);
    if (failed) return false;
    std::this_thread::yield();
    fs::rename(refuge_, prey_, failed);
    return !failed;
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
