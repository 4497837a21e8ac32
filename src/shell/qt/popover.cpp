#include "shell/qt/popover.h"

#include <QtCore/qvariant.h>
#include <QtGui/qguiapplication.h>
#include <QtGui/qscreen.h>
#include <QtQml/qqmlcomponent.h>

#include <utility>

#include "kit/qt/module.h"
#include "shell/popover_place.h"
#include "shell/screens/menu_bar_screen.h"

namespace tidewell {

namespace {

/// A click is over by then, in milliseconds.
constexpr qint64 longestClick = 350;

Area toArea(const QRect& rect) {
    return {.x = rect.x(), .y = rect.y(), .width = rect.width(), .height = rect.height()};
}

const QScreen& screenAt(const QRect& item) {
    const auto* screen = QGuiApplication::screenAt(item.center());
    return screen ? *screen : *QGuiApplication::primaryScreen();
}

}  // namespace

Popover::Popover(Application& application) : application_(application) {}

Popover::~Popover() {
    // Both before the engine.
    delete window_;
    delete leaving_;
}

void Popover::open(const QRect& item) {
    close();
    delete leaving_;
    auto* window = makeWindow();
    window_ = window;
    const auto place = popoverPlace(toArea(item), window->width(), window->height(),
                                    toArea(screenAt(item).availableGeometry()));
    window->setPosition(place.x, place.y);
    leaveWhenInactive(*window);
    window->show();
    window->raise();
    window->requestActivate();
}

void Popover::close() {
    if (!window_) return;
    leaving_ = std::exchange(window_, nullptr);
    leaving_->hide();
    // A verb of its own screen may have closed it.
    leaving_->deleteLater();
}

bool Popover::hasJustLeft() const {
    return sinceLeft_.isValid() && !sinceLeft_.hasExpired(longestClick);
}

QQuickWindow* Popover::makeWindow() {
    if (!engine_) {
        engine_ = std::make_unique<QQmlEngine>();
        importTidewellModule(*engine_);
    }
    QQmlComponent component(engine_.get(), QUrl("qrc:/Tidewell/shell/screens/PopoverWindow.qml"));
    auto* screen = new MenuBarScreen(application_, [this] { close(); });
    auto* window = qobject_cast<QQuickWindow*>(
        component.createWithInitialProperties({{"screen", QVariant::fromValue(screen)}}));
    if (!window) qFatal("the popover's own files cannot be loaded");
    screen->setParent(window);
    return window;
}

void Popover::leaveWhenInactive(QQuickWindow& window) {
    QObject::connect(&window, &QWindow::activeChanged, &window, [this, &window] {
        if (window.isActive() || window_ != &window) return;
        sinceLeft_.start();
        close();
    });
}

}  // namespace tidewell
