#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "async/executor.h"
#include "async/observable.h"

namespace tidewell {

/// Decides when the film of the first start gives way to the window below it: two seconds before
/// its end, or at its end if it is shorter than that, or after twelve seconds whatever has become
/// of it. Knows no player: it is told what happens to the film. Main thread only; held by
/// shared_ptr.
class IntroReveal : public std::enable_shared_from_this<IntroReveal> {
 public:
    /// Each is called once in the end.
    struct Actions {
        std::function<void()> onReveal;  ///< what lies below begins to show
        std::function<void()> onDone;    ///< the film has gone
    };

    explicit IntroReveal(Actions actions) : actions_(std::move(actions)) {}

    /// Fired before each change of the opacity.
    Signal willChange;
    /// The opacity that the film has, or is on its way to.
    Published<double> opacity{willChange, 1.0};

    /// The film has been started.
    void begin();
    /// How far it is. Its duration is absent as long as it is not known.
    void filmIsAt(Duration position, std::optional<Duration> duration);
    void filmHasEnded() { reveal(); }
    /// There is none, or none that can be played: what lies below is shown at once.
    void filmIsMissing();

 private:
    Task<> followFilm();
    Task<> loseAllPatience();
    Task<> goAway();
    bool isNearItsEnd() const;
    /// Whether this is the first call; no other has an effect.
    bool startReveal();
    void reveal();

    const Actions actions_;
    Duration position_{};
    std::optional<Duration> duration_;
    bool isRevealed_ = false;
};

}  // namespace tidewell
