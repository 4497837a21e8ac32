#pragma once

#include <QtCore/qurl.h>

#include <memory>

#include "kit/qt/screen.h"
#include "shell/content_view.h"
#include "shell/intro_reveal.h"

namespace tidewell {

/// Where the films lie that are built into the program.
inline constexpr auto ownFilmFolder = ":/Tidewell/film";

/// Behind the film of the first start. Its player tells it what becomes of the film, with times in
/// milliseconds.
class IntroScreen final : public Screen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(QUrl film READ film CONSTANT)
    Q_PROPERTY(double opacity READ opacity NOTIFY changed)

 public:
    /// The film is "onboarding.mp4" in that folder, else "onboarding.mov".
    IntroScreen(const std::shared_ptr<ContentView>& view, const QString& filmFolder,
                QObject* parent);

    /// Empty if there is none.
    QUrl film() const { return film_; }
    double opacity() const { return reveal_->opacity(); }

    /// To be called before the film is started. Without one or what plays it, or if the user wants
    /// less motion, all is over at once.
    Q_INVOKABLE void begin();
    Q_INVOKABLE void filmIsAt(double position, double duration);
    Q_INVOKABLE void filmHasEnded() { reveal_->filmHasEnded(); }
    Q_INVOKABLE void filmIsMissing() { reveal_->filmIsMissing(); }

 private:
    void update() override {}

    const QUrl film_;
    const std::shared_ptr<IntroReveal> reveal_;
};

}  // namespace tidewell
