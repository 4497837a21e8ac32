#include "cleanup/screens/scan_screen.h"

#include <utility>

namespace tidewell {

ScanScreen::ScanScreen(std::shared_ptr<CleanupViewModel> model, std::shared_ptr<LiveSums> sums,
                       QObject* parent)
    : Screen(parent), model_(std::move(model)), sums_(std::move(sums)) {
    observe(model_->willChange);
    observe(sums_->willChange);
    update();
}

void ScanScreen::update() {
    content_ = scanContent(*model_, sums_->totalFreedBytes());
}

void ScanScreen::startScan() {
    spawn(model_, &CleanupViewModel::startScan);
}

}  // namespace tidewell
