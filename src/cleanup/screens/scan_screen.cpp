#include "cleanup/screens/scan_screen.h"

#include <utility>

#include "cleanup/stored_sums.h"

namespace tidewell {

ScanScreen::ScanScreen(std::shared_ptr<CleanupViewModel> model, UserDefaults defaults,
                       QObject* parent)
    : Screen(parent), model_(std::move(model)), defaults_(std::move(defaults)) {
    observe(model_->willChange);
    update();
}

void ScanScreen::update() {
    // The sum lies on the disk: it is not read at each step of a progress that does not show it.
    const bool showsSum = model_->phase() == CleanupViewModel::Phase::idle;
    content_ = scanContent(*model_, showsSum ? defaults_.integer(totalFreedBytesKey) : 0);
}

void ScanScreen::startScan() {
    spawn(model_, &CleanupViewModel::startScan);
}

}  // namespace tidewell
