#include "shell/qt/main_window.h"

#include <QtCore/qvariant.h>

#include <utility>

#include "kit/qt/module.h"

namespace tidewell {

MainWindow::MainWindow(Application& application, std::shared_ptr<ContentView> view,
                       const QString& filmFolder)
    : application_(application),
      view_(std::move(view)),
      storedSums_(application.host.configurationDirectory, [this] { application_.sums->read(); }),
      screen_(view_, filmFolder) {
    importTidewellModule(engine_);
    engine_.setInitialProperties({{"windowScreen", QVariant::fromValue(&screen_)}});
    engine_.load(QUrl("qrc:/Tidewell/shell/screens/TidewellWindow.qml"));
    if (engine_.rootObjects().isEmpty()) qFatal("the window's own files cannot be loaded");
    window_ = qobject_cast<QQuickWindow*>(engine_.rootObjects().constFirst());
    QObject::connect(window_, &QWindow::visibleChanged, &screen_, [this](bool isVisible) {
        if (isVisible) view_->appear();
    });
    application_.bridge.openWindow = [this] { open(); };
}

MainWindow::~MainWindow() {
    application_.bridge.openWindow = nullptr;
}

void MainWindow::open() {
    // A window that is minimised is in sight for the toolkit.
    if (window_->windowStates() & Qt::WindowMinimized) window_->showNormal();
    window_->show();
    activate();
}

void MainWindow::activate() {
    if (!window_->isVisible()) return;
    window_->raise();
    window_->requestActivate();
}

}  // namespace tidewell
