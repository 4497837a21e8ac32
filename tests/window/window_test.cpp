#include <csignal>

#include "shell/qt/quit_watch.h"
#include "window_test.h"

namespace tidewell::test {
namespace {

using Phase = CleanupViewModel::Phase;

TEST_F(WindowTest, EverySectionIsReachedBySidebarKeyboardBridgeAndUrl) {
    machine.folder("~/.cargo");
    start();
    for (const auto mode : allModes) {
        view->mode = mode == Mode::home ? Mode::apps : Mode::home;
        click(QString::fromUtf8(title(mode).data()), QAccessible::Button);
        EXPECT_EQ(view->mode(), mode);
        ASSERT_TRUE(comesTo([&] {
            const auto* row = find(QString::fromUtf8(title(mode).data()), QAccessible::Button);
            return row && row->state().selected;
        }));
    }
    click("Home", QAccessible::Button);
    key(Qt::Key_5, Qt::ControlModifier);
    EXPECT_TRUE(comesTo([&] { return focused() == "Check Performance"; }))
        << focused().toStdString();
    for (int number = 0; number < 7; ++number) {
        key(Qt::Key_1 + number, Qt::ControlModifier);
        EXPECT_EQ(view->mode(), allModes[static_cast<std::size_t>(number)]);
    }
    application->bridge.openSection("Performance");
    EXPECT_EQ(view->mode(), Mode::performance);
    view->openUrl("tidewell://scan");
    EXPECT_EQ(view->mode(), Mode::home);
    EXPECT_TRUE(comesTo([&] { return view->smartScan->isRunning(); }));
    view->smartScan->stop();
}

TEST_F(WindowTest, WithoutDevModeTheKeysFollowTheRowsThatAreThere) {
    start();
    EXPECT_FALSE(shows("Dev Mode"));
    key(Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(view->mode(), Mode::apps);
    key(Qt::Key_7, Qt::ControlModifier);
    EXPECT_EQ(view->mode(), Mode::apps) << "there are six rows";
}

TEST_F(WindowTest, ClosingKeepsTheProgramAndItsResultsAndOpeningAppearsAnew) {
    start();
    view->cleanupModel->phase = Phase::review;
    key(Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(window->window().isVisible());
    application->bridge.pendingSection = "Clean";
    application->bridge.showWindow();
    EXPECT_TRUE(window->window().isVisible());
    EXPECT_EQ(view->mode(), Mode::clean);
    EXPECT_EQ(application->bridge.pendingSection, std::nullopt);
    EXPECT_TRUE(comesTo([&] { return shows("Nothing to clean"); }));
}

TEST_F(WindowTest, AnEndFromOutsideIsHeardLikeQuitAndTheSecondDoesNotWait) {
    start();
    int ends = 0;
    Quitting quitting({view->cleanupModel}, [&] { ++ends; });
    const QuitWatch watch(quitting);
    view->cleanupModel->phase = Phase::cleaning;
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
    EXPECT_EQ(ends, 0);
    EXPECT_TRUE(window->window().isVisible());
    std::raise(SIGTERM);
    EXPECT_TRUE(comesTo([&] { return ends == 1; }));
}

TEST_F(WindowTest, TheAccessCardLeadsToTheSettingsUntilAccessIsGranted) {
    start();
    press("Enable Access");
    ASSERT_EQ(openedUrls.size(), 1);
    machine.text("/Library/Application Support/com.apple.TCC/TCC.db", "");
    application->didBecomeActive.fire();
    EXPECT_TRUE(comesTo([&] { return shows("Full Disk Access") && !shows("Enable Access"); }));
    press("About Tidewell");
    EXPECT_TRUE(view->showAbout());
}

}  // namespace
}  // namespace tidewell::test
