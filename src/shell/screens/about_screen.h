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
    Q_PROPERTY(QString version READ version CONSTANT)
    Q_PROPERTY(QString purpose READ purpose CONSTANT)
    Q_PROPERTY(QString footer READ footer CONSTANT)

 public:
    AboutScreen(std::shared_ptr<ContentView> view, QObject* parent);

    bool isOpen() const { return view_->showAbout(); }
    QAbstractItemModel* links() { return &links_; }
    QString version() const { return toText(versionLine(view_->host().ownBundle)); }
    QString purpose() const { return toText(wordsOf(view_->host().system).purpose); }
    QString footer() const { return toText(wordsOf(view_->host().system).madeFor); }

    /// Opens the target of the link's row; nothing happens for a row that is not there.
    Q_INVOKABLE void openLink(int row);
    Q_INVOKABLE void close() { view_->showAbout = false; }

 private:
    void update() override {}

    const std::shared_ptr<ContentView> view_;
    ListModel<AboutLink> links_;
};

}  // namespace tidewell
