#include "adversary.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <utility>

#include "random_machine.h"

namespace tidewell::test {

namespace fs = std::filesystem;

Adversary::Adversary(unsigned seed, std::vector<std::string> folders, std::string precious)
    : folders_(std::move(folders)),
      precious_(std::move(precious)),
      thread_([this, seed] { work(seed); }) {}

Adversary::~Adversary() {
    isOver_ = true;
    thread_.join();
}

void Adversary::work(unsigned seed) {
    Chance chance(seed);
    while (!isOver_ && !folders_.empty()) {
        const auto& folder = chance.oneOf(folders_);
        const auto& other = chance.oneOf(folders_);
        std::error_code gone;
        switch (chance.below(8)) {
            case 0:
                std::ofstream(folder + "/added") << "while the clean ran";
                break;
            case 1:
                fs::resize_file(folder + "/added", chance.below(1 << 20), gone);
                break;
            case 2:
                fs::rename(folder + "/added", other + "/moved here", gone);
                break;
            default:
                swap(folder);
        }
    }
}

void Adversary::swap(const std::string& folder) {
    std::error_code gone;
    const auto away = folder + " away";
    fs::rename(folder, away, gone);
    if (gone) return;
    fs::create_symlink(precious_, folder, gone);
    if (!gone) ++swaps_;
    for (int pause = 0; pause < 200; ++pause) std::this_thread::yield();
    // As a link it goes, as a folder it stays: unlink takes no folder.
    if (fs::is_symlink(fs::symlink_status(folder, gone))) std::remove(folder.c_str());
    fs::rename(away, folder, gone);
}

}  // namespace tidewell::test
