#include "shell/screens/intro_screen.h"

#include <QtCore/qfileinfo.h>

#include <chrono>

#include "kit/qt/motion.h"
#include "shell/qt/film_player.h"

namespace tidewell {

namespace {

QUrl findFilm(const QString& folder) {
    for (const auto* name : {"/onboarding.mp4", "/onboarding.mov"}) {
        const auto path = folder + name;
        if (!QFileInfo(path).isFile()) continue;
        return path.startsWith(':') ? QUrl("qrc" + path) : QUrl::fromLocalFile(path);
    }
    return {};
}

Duration milliseconds(double count) {
    return std::chrono::duration_cast<Duration>(std::chrono::duration<double, std::milli>(count));
}

}  // namespace

IntroScreen::IntroScreen(const std::shared_ptr<ContentView>& view, const QString& filmFolder,
                         QObject* parent)
    : Screen(parent),
      film_(findFilm(filmFolder)),
      reveal_(std::make_shared<IntroReveal>(IntroReveal::Actions{
          .onReveal = [view] { view->revealHome(); }, .onDone = [view] { view->endIntro(); }})) {
    observe(reveal_->willChange);
}

void IntroScreen::begin() {
    if (film_.isEmpty() || Motion::isReduced() || !hasFilmPlayer()) return reveal_->filmIsMissing();
    reveal_->begin();
}

void IntroScreen::filmIsAt(double position, double duration) {
    std::optional<Duration> known;
    if (duration > 0) known = milliseconds(duration);
    reveal_->filmIsAt(milliseconds(position), known);
}

}  // namespace tidewell
