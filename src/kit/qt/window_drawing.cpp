#include "kit/qt/window_drawing.h"

#include <QtCore/qrunnable.h>
#include <QtGui/qopenglcontext.h>
#include <QtGui/qopenglfunctions.h>
#include <QtQuick/qsgrendererinterface.h>

#include <string_view>

namespace tidewell {

namespace {

/// In the thread that draws, while the window's context is current there.
Drawing drawingWithOpenGL() {
    auto* context = QOpenGLContext::currentContext();
    if (!context) return Drawing::unknown;
    const auto* name =
        reinterpret_cast<const char*>(context->functions()->glGetString(GL_RENDERER));
    const std::string_view renderer = name ? name : "";
    for (const std::string_view software : {"llvmpipe", "softpipe", "swrast", "Software"})
        if (renderer.find(software) != std::string_view::npos) return Drawing::byProcessor;
    return Drawing::byGraphicsCard;
}

Drawing drawingOf(const QQuickWindow& window) {
    switch (window.rendererInterface()->graphicsApi()) {
        case QSGRendererInterface::Unknown:
            return Drawing::unknown;
        case QSGRendererInterface::Software:
            return Drawing::byProcessor;
        case QSGRendererInterface::OpenGL:
            return drawingWithOpenGL();
        default:
            return Drawing::byGraphicsCard;
    }
}

}  // namespace

WindowDrawing* WindowDrawing::of(QQuickWindow* window) {
    if (auto* found = window->findChild<WindowDrawing*>({}, Qt::FindDirectChildrenOnly))
        return found;
    return new WindowDrawing(window);
}

WindowDrawing::WindowDrawing(QQuickWindow* window) : QObject(window), window_(window) {
    connect(window, &QWindow::activeChanged, this, &WindowDrawing::changed);
    connect(window, &QWindow::visibilityChanged, this, &WindowDrawing::changed);
    connect(window, &QQuickWindow::beforeRendering, this, &WindowDrawing::look,
            Qt::DirectConnection);
}

bool WindowDrawing::isSeenAndActive() const {
    return window_->isActive() && window_->isVisible() &&
           window_->visibility() != QWindow::Minimized;
}

void WindowDrawing::assume(Drawing drawing) {
    disconnect(window_, &QQuickWindow::beforeRendering, this, &WindowDrawing::look);
    drawing_ = drawing;
    emit changed();
}

/// In the thread that draws.
void WindowDrawing::look() {
    const auto found = drawingOf(*window_);
    if (found == Drawing::unknown) return;
    disconnect(window_, &QQuickWindow::beforeRendering, this, &WindowDrawing::look);
    QMetaObject::invokeMethod(this, [this, found] {
        drawing_ = found;
        emit changed();
    });
}

}  // namespace tidewell
