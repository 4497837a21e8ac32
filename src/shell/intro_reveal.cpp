#include "shell/intro_reveal.h"

#include <chrono>
#include <utility>

namespace tidewell {

namespace {

using namespace std::chrono_literals;

constexpr Duration tick = 200ms;
/// How long before its end the film gives way.
constexpr Duration leadTime = 2s;
/// A film that stalls holds the window no longer than this.
constexpr Duration patience = 12s;
/// The film fades in 2.5 s, what lies below in 3.
constexpr Duration passage = 3s;

}  // namespace

void IntroReveal::begin() {
    spawn(shared_from_this(), &IntroReveal::followFilm);
    spawn(shared_from_this(), &IntroReveal::loseAllPatience);
}

void IntroReveal::filmIsAt(Duration position, std::optional<Duration> duration) {
    position_ = position;
    duration_ = duration;
}

void IntroReveal::filmIsMissing() {
    if (startReveal()) actions_.onDone();
}

Task<> IntroReveal::followFilm() {
    while (!isRevealed_) {
        co_await sleepFor(tick);
        if (isNearItsEnd()) reveal();
    }
}

Task<> IntroReveal::loseAllPatience() {
    co_await sleepFor(patience);
    reveal();
}

Task<> IntroReveal::goAway() {
    co_await sleepFor(passage);
    actions_.onDone();
}

bool IntroReveal::isNearItsEnd() const {
    return duration_ && position_ >= *duration_ - leadTime;
}

bool IntroReveal::startReveal() {
    if (std::exchange(isRevealed_, true)) return false;
    opacity = 0.0;
    actions_.onReveal();
    return true;
}

void IntroReveal::reveal() {
    if (startReveal()) spawn(shared_from_this(), &IntroReveal::goAway);
}

}  // namespace tidewell
