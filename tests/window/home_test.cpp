#include "cleanup/stored_sums.h"
#include "platform/path_text.h"
#include "platform/user_defaults.h"
#include "window_test.h"

namespace tidewell::test {
namespace {

using Phase = SmartScanController::Phase;

class HomeTest : public WindowTest {
 protected:
    HomeTest() {
        machine.file("~/.npm/_cacache/one", 3 * megabyte);
        machine.text("/Library/Application Support/com.apple.TCC/TCC.db", "");
    }

    Phase phase() const { return view->smartScan->phase(); }
    bool comesToDone() const {
        return comesTo([&] { return phase() == Phase::done; }) &&
               comesTo([&] { return shows("All scanned."); });
    }
};

TEST_F(HomeTest, OneButtonScansAllAndLeadsIntoTheTools) {
    start();
    EXPECT_EQ(focused(), "Scan My Mac");
    click("Scan My Mac");
    ASSERT_TRUE(comesToDone()) << told();
    EXPECT_TRUE(machine.has("~/.npm/_cacache/one")) << "a scan only looks";
    EXPECT_TRUE(shows("Nothing deleted yet. Tap a tool to dig in."));
    ASSERT_TRUE(comesTo([&] { return focused() == "Review 3.1 MB of junk"; }));
    key(Qt::Key_Return);
    EXPECT_EQ(view->mode(), Mode::clean);
    EXPECT_TRUE(comesTo([&] { return shows("Found 3.1 MB of junk."); }));

    click("Home");
    ASSERT_TRUE(comesTo([&] { return shows("All scanned."); })) << "the result stays";
    click("Back");
    EXPECT_EQ(phase(), Phase::idle);
    ASSERT_TRUE(comesTo([&] { return shows("Overview"); }));
    EXPECT_TRUE(shows("Ready to review"));
    press(findDescribed("Clean", "3.1 MB found"), "Clean");
    EXPECT_EQ(view->mode(), Mode::clean);
}

TEST_F(HomeTest, AStoppedScanShowsWhatWasSkippedAndATapOnThatDoesNothing) {
    start();
    view->smartScan->start();
    ASSERT_TRUE(comesTo([&] { return focused() == "Stop"; }));
    key(Qt::Key_Space);
    ASSERT_TRUE(comesTo([&] { return shows("Scan stopped"); }));
    press(findDescribed("Advisor", "skipped"), "Advisor");
    EXPECT_EQ(view->mode(), Mode::home);
    ASSERT_TRUE(comesTo([&] { return findDescribed("Clean", "3.1 MB") != nullptr; }))
        << "the scan in hand fills its tool all the same";
    press(findDescribed("Clean", "3.1 MB"), "Clean");
    EXPECT_EQ(view->mode(), Mode::clean);
}

TEST_F(HomeTest, AScanThatIsOverBeforeItIsSeenHandsTheKeyboardToItsNextStepToo) {
    start();
    view->cleanupModel->items =
        CleanupItems{{.target = {}, .resolvedPaths = {}, .sizeBytes = 5'000'000}};
    view->smartScan->phase = Phase::done;
    ASSERT_TRUE(comesTo([&] { return shows("All scanned."); }));
    EXPECT_TRUE(comesTo([&] { return focused() == "Review 5 MB of junk"; }))
        << focused().toStdString();
}

TEST_F(HomeTest, WhatTheCommandLineCleansBesideTheWindowIsSeenAtOnce) {
    start();
    ASSERT_TRUE(comesTo([&] { return shows("First scan = first win. Try it."); }));
    UserDefaults(machine.host().configurationDirectory).add(totalFreedBytesKey, 5'000'000);
    EXPECT_TRUE(comesTo([&] { return shows("5 MB won back with Tidewell"); }));
    UserDefaults(machine.host().configurationDirectory).add(totalFreedBytesKey, 1'000'000);
    EXPECT_TRUE(comesTo([&] { return shows("6 MB won back with Tidewell"); }));
}

TEST_F(HomeTest, WithoutAccessTheBannerLeadsToTheSettingsAndToTheProgram) {
    machine.remove("/Library/Application Support/com.apple.TCC/TCC.db");
    start();
    ASSERT_TRUE(comesTo([&] { return shows("Turn on Full Disk Access"); }));
    click("Open Settings");
    EXPECT_EQ(openedUrls.size(), 1);
    click("Reveal App");
    ASSERT_EQ(revealedPaths.size(), 1);
    EXPECT_EQ(lastPathComponent(revealedPaths.front()), "window_tests");
}

}  // namespace
}  // namespace tidewell::test
