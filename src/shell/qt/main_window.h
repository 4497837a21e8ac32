#pragma once

#include <QtQml/qqmlapplicationengine.h>
#include <QtQuick/qquickwindow.h>

#include <memory>

#include "shell/qt/folder_watch.h"
#include "shell/screens/window_screen.h"

namespace tidewell {

/// The one window, over the root that it shows. Closing it hides it, and its root stays.
class MainWindow {
 public:
    /// The application outlives it. From now on its bridge can open the window.
    MainWindow(Application& application, std::shared_ptr<ContentView> view,
               const QString& filmFolder = ownFilmFolder);
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;
    ~MainWindow();

    /// Shows the window or, if it is in sight, brings it before all others.
    void open();
    /// Before all other windows and with the keyboard, if it is in sight.
    void activate();

    QQuickWindow& window() { return *window_; }

 private:
    Application& application_;
    const std::shared_ptr<ContentView> view_;
    /// A command line may clean beside the window, which has it also while it is closed.
    FolderWatch storedSums_;
    WindowScreen screen_;
    QQmlApplicationEngine engine_;
    QQuickWindow* window_ = nullptr;  ///< the engine's
};

}  // namespace tidewell
