#include "cleanup/screens/cleaned_screen.h"

#include <utility>

namespace tidewell {

CleanedScreen::CleanedScreen(std::shared_ptr<CleanupViewModel> model, QObject* parent)
    : Screen(parent), model_(std::move(model)) {
    observe(model_->willChange);
    update();
}

}  // namespace tidewell
