#pragma once

#include <QtCore/qstring.h>

#include <memory>

#include "kit/qt/list_model.h"
#include "kit/qt/screen.h"
#include "kit/qt/text.h"
#include "kit/words.h"
#include "shell/content_view.h"
#include "shell/screens/welcome_content.h"
#include "shell/screens/window_content.h"

namespace tidewell {

/// Behind the About sheet.
class AboutScreen final : public Screen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel* links READ links CONSTANT)
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString version READ version CONSTANT)
    Q_PROPERTY(QString purpose READ purpose CONSTANT)
    Q_PROPERTY(QString usage READ usage CONSTANT)
    Q_PROPERTY(QString privacy READ privacy CONSTANT)
    Q_PROPERTY(QString privacySymbol READ privacySymbol CONSTANT)
    Q_PROPERTY(QString footer READ footer CONSTANT)
    Q_PROPERTY(QString closeLabel READ closeLabel CONSTANT)
    Q_PROPERTY(QString closeSymbol READ closeSymbol CONSTANT)
    Q_PROPERTY(QString outwardSymbol READ outwardSymbol CONSTANT)

 public:
    AboutScreen(std::shared_ptr<ContentView> view, QObject* parent);

    bool isOpen() const { return view_->showAbout(); }
    QAbstractItemModel* links() { return &links_; }
    static QString title() { return toText(aboutLabel); }
    QString version() const { return toText(versionLine(view_->host().ownBundle)); }
    QString purpose() const { return toText(wordsOf(view_->host().system).purpose); }
    static QString usage() { return toText(usageLine); }
    static QString privacy() { return toText(privacyLine); }
    static QString privacySymbol() { return toText(tidewell::privacySymbol); }
    QString footer() const { return toText(wordsOf(view_->host().system).madeFor); }
    static QString closeLabel() { return toText(closeAboutLabel); }
    static QString closeSymbol() { return toText(closeAboutSymbol); }
    static QString outwardSymbol() { return toText(tidewell::outwardSymbol); }

    /// Opens the target of the link's row; nothing happens for a row that is not there.
    Q_INVOKABLE void openLink(int row);
    Q_INVOKABLE void close() { view_->showAbout = false; }

 private:
    void update() override {}

    const std::shared_ptr<ContentView> view_;
    ListModel<AboutLink> links_;
};

}  // namespace tidewell
