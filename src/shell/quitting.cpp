#include "shell/quitting.h"

#include <algorithm>
#include <utility>

namespace tidewell {

namespace {

bool cleans(const std::shared_ptr<CleaningSession>& session) {
    return session->phase() == CleaningSession::Phase::cleaning;
}

}  // namespace

Quitting::Quitting(std::vector<std::shared_ptr<CleaningSession>> sessions,
                   std::function<void()> end)
    : sessions_(std::move(sessions)), end_(std::move(end)) {}

bool Quitting::isCleaning() const {
    return std::ranges::any_of(sessions_, cleans);
}

void Quitting::stopCleaning() {
    for (const auto& session : sessions_)
        if (cleans(session)) session->stopAfterItemInHand();
}

void Quitting::request() {
    const bool wasAsked = !observers_.empty();
    if (wasAsked || !isCleaning()) return end_();
    stopCleaning();
    for (const auto& session : sessions_)
        observers_.push_back(onChanged(session->willChange, [this] {
            if (!isCleaning()) end_();
        }));
}

}  // namespace tidewell
