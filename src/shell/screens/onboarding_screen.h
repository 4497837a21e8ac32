#pragma once

#include <QtCore/qobject.h>
#include <QtCore/qstring.h>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <utility>

#include "kit/qt/text.h"
#include "kit/words.h"
#include "shell/content_view.h"
#include "shell/screens/welcome_content.h"

namespace tidewell {

/// Behind the first-run screen, which nothing but its button leaves.
class OnboardingScreen final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(QString line READ line CONSTANT)

 public:
    OnboardingScreen(std::shared_ptr<ContentView> view, QObject* parent)
        : QObject(parent), view_(std::move(view)) {}

    QString line() const { return toText(wordsOf(view_->host().system).purpose); }

    Q_INVOKABLE void getStarted() { view_->finishOnboarding(Intro::play); }

 private:
    const std::shared_ptr<ContentView> view_;
};

}  // namespace tidewell
