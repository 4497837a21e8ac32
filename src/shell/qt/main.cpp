#include <QtCore/qloggingcategory.h>
#include <QtWidgets/qapplication.h>

#include <cstdlib>
#include <exception>
#include <iostream>
#include <memory>

#include "async/background.h"
#include "kit/qt/motion.h"
#include "platform/reduced_motion.h"
#include "platform/single_instance.h"
#include "platform/termination.h"
#include "shell/qt/film_player.h"
#include "shell/qt/main_window.h"
#include "shell/qt/qt_main_loop.h"
#include "shell/qt/quit_watch.h"
#include "shell/qt/status_image.h"
#include "shell/qt/status_item.h"
#include "shell/qt/timed_application.h"
#include "shell/start_words.h"

namespace tidewell {

namespace {

/// What a later start that has no URL hands over: show the window.
const std::string showWish;

int handOver(const SingleInstance& instance, const StartWish& wish) {
    const auto delivery = instance.send(wish.url.value_or(showWish));
    if (delivery == SingleInstance::Delivery::taken) return EXIT_SUCCESS;
    std::cerr << "tidewell: it is running already, but does not answer\n";
    return EXIT_FAILURE;
}

void hear(Application& application, ContentView& view, const std::string& message) {
    application.bridge.showWindow();
    if (message != showWish) view.openUrl(message);
}

Task<> followMotionSetting(Host host) {
    auto asking = background([host] { return wantsReducedMotion(host); });
    const bool isReduced = co_await asking;
    Motion::setReduced(isReduced);
}

/// Where neither a status item nor a later start leads back to it, a closed window was the last of
/// the program that anybody could reach.
void quitWhenOutOfReach() {
    QObject::connect(qGuiApp, &QGuiApplication::lastWindowClosed, qGuiApp, [] {
        if (!StatusItem::isShown()) QApplication::quit();
    });
}

/// Closing the window ends nothing: the program is left with Quit. What is stored is on the disk
/// already; threads and tools under way are not waited for, but for an item that is being cleaned.
[[noreturn]] void runToQuit(const Host& host, SingleInstance& instance, const StartWish& wish,
                            TimedApplication* timed) {
    const QtMainLoop loop;
    MainWindow* opened = nullptr;
    Application application(host, desktopWorkspace(host), [&opened] {
        if (opened) opened->activate();
    });
    const auto view = std::make_shared<ContentView>(application);
    MainWindow window(application, view);
    opened = &window;
    Quitting quitting({view->cleanupModel, view->devModeModel}, [] { QCoreApplication::exit(); });
    const QuitWatch quitWatch(quitting);
    const auto statusItem = std::make_unique<StatusItem>(application);
    QObject::connect(qGuiApp, &QGuiApplication::applicationStateChanged, qGuiApp,
                     [&application](Qt::ApplicationState state) {
                         if (state == Qt::ApplicationActive) application.didBecomeActive.fire();
                     });
    const auto reach = instance.listen([&](std::string message) {
        Executor::main().post([&application, &view, message = std::move(message)] {
            hear(application, *view, message);
        });
    });
    if (reach == SingleInstance::Reach::none) quitWhenOutOfReach();
    spawn(followMotionSetting(host));
    if (timed) timed->watchFirstFrame(window.window());
    window.open();
    if (wish.url) view->openUrl(*wish.url);
    const int status = QApplication::exec();
    if (timed) timed->sumUp();
    std::cout.flush();
    std::quick_exit(status);
}

int start(int& count, char** words, const StartWish& wish) {
    const auto found = findHost(wish.host);
    if (!found.host) {
        std::cerr << "tidewell: " << found.problem << '\n';
        return EXIT_FAILURE;
    }
    SingleInstance instance(*found.host);
    if (instance.role() == SingleInstance::Role::later) return handOver(instance, wish);
    chooseFilmPlayer();
    QLoggingCategory::setFilterRules("default.debug=false");   // the player tells what it tries
    QApplication::setApplicationName("io.tidewell.Tidewell");  // the class of its windows on X11
    QApplication::setApplicationDisplayName("Tidewell");
    QApplication::setDesktopFileName("io.tidewell.Tidewell");
    QApplication::setQuitOnLastWindowClosed(false);
    const auto setIcon = [] {
        QApplication::setWindowIcon(
            QIcon::fromTheme("io.tidewell.Tidewell", QIcon(QString(logoMarkFile))));
    };
    if (wish.showsTimings) {
        TimedApplication toolkit(count, words);
        setIcon();
        runToQuit(*found.host, instance, wish, &toolkit);
    }
    const QApplication toolkit(count, words);
    setIcon();
    runToQuit(*found.host, instance, wish, nullptr);
}

int run(int& count, char** words) {
    const auto parsed = parseStartWords({words + 1, words + count});
    if (const auto* wish = std::get_if<StartWish>(&parsed)) return start(count, words, *wish);
    const auto& ending = std::get<StartEnding>(parsed);
    const bool wasAsked = ending.reason == StartEnding::Reason::asked;
    (wasAsked ? std::cout : std::cerr) << ending.text;
    return wasAsked ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

}  // namespace tidewell

int main(int count, char** words) {
    tidewell::outliveForbiddenWrites();
    try {
        return tidewell::run(count, words);
    } catch (const std::exception& problem) {
        std::cerr << "tidewell: something went wrong inside the program: " << problem.what()
                  << '\n';
        return EXIT_FAILURE;
    }
}
