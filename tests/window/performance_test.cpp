#include "support/running_program.h"
#include "window_test.h"

namespace tidewell::test {
namespace {

class PerformanceTest : public WindowTest {
 protected:
    PerformanceTest() {
        const auto item = [](const std::string& label, const std::string& program) {
            return "<plist version=\"1.0\"><dict><key>Label</key><string>" + label +
                   "</string><key>Program</key><string>" + program + "</string></dict></plist>";
        };
        machine.text("~/Library/LaunchAgents/sync.plist", item("org.sync", "/bin/sync"));
        machine.text("/Library/LaunchDaemons/db.plist", item("org.db", "/opt/db"));
    }

    /// By keyboard, up to the list.
    void scan() {
        start();
        key(Qt::Key_4, Qt::ControlModifier);
        ASSERT_TRUE(comesTo([&] { return focused() == "Check Performance"; })) << told();
        key(Qt::Key_Space);
        ASSERT_TRUE(comesTo([&] { return focused() == "Rescan"; })) << told();
        for (std::size_t row = 0; row < view->performanceModel->apps().size(); ++row)
            ASSERT_TRUE(comesTo([&] { return isListed(nameOf(row)); })) << told();
    }
    QString nameOf(std::size_t row) const {
        return QString::fromStdString(view->performanceModel->apps().at(row).name);
    }
    bool isListed(const QString& app) const { return find(app, QAccessible::ListItem) != nullptr; }
    bool isBusy(const QString& app) const { return find(app, QAccessible::Animation) != nullptr; }
    bool isAtQuitOf(const QString& app) const {
        const auto* button = findDescribed("Quit", app);
        return button && button->state().focused;
    }
};

TEST_F(PerformanceTest, TheStartLeadsToTheListAndTheArrowsThroughItsPanels) {
    start();
    click("Performance");
    ASSERT_TRUE(comesTo([&] { return shows("Check Performance"); }));
    EXPECT_TRUE(shows("See what's using memory and what starts at login."));
    EXPECT_FALSE(find("Performance", QAccessible::Heading)) << "the start has no header";
    view->performanceModel->phase = PerformanceViewModel::Phase::scanning;
    ASSERT_TRUE(comesTo([&] { return shows("Checking what's running…"); }));
    EXPECT_TRUE(find("Performance", QAccessible::Heading));
    EXPECT_TRUE(shows("Reading memory and startup items"));
    EXPECT_FALSE(shows("Rescan"));
    view->performanceModel->phase = PerformanceViewModel::Phase::idle;
    click("Check Performance");
    ASSERT_TRUE(comesTo([&] { return shows("Using the most memory"); }));

    click("Startup");
    EXPECT_TRUE(comesTo([&] { return shows("Starts automatically"); }));
    EXPECT_FALSE(shows("Using the most memory"));
    key(Qt::Key_Left);
    EXPECT_EQ(focused(), "Memory");
    EXPECT_TRUE(showsFocus());
    EXPECT_TRUE(shows("Using the most memory"));
    key(Qt::Key_Left);
    EXPECT_EQ(focused(), "Memory") << "it is the first";
    key(Qt::Key_Tab);
    EXPECT_EQ(focused(), "Rescan") << "the keyboard comes to the picker once";
}

TEST_F(PerformanceTest, TheMemoryPanelTellsHowMuchIsUsedAndByWhom) {
    const RunningProgram paint(executableOf(machine, "/Applications/Paint.app"));
    scan();
    auto& model = *view->performanceModel;
    ASSERT_EQ(model.apps().size(), 1);
    auto unread = model.apps()[0];
    unread.id = -1;
    unread.name = "Unread";
    unread.memoryBytes = 0;
    model.apps.mutate()[0].memoryBytes = 1'200'000;
    model.apps.mutate().push_back(unread);
    model.memoryUsed = 3'000'000'000;
    model.memoryTotal = 4'000'000'000;
    ASSERT_TRUE(comesTo([&] { return isListed("Unread"); })) << told();
    EXPECT_TRUE(shows("3 GB of 4 GB memory in use"));
    EXPECT_TRUE(findDescribed("75% in use", "3 GB of 4 GB"));
    EXPECT_TRUE(
        shows("The honest way to free memory is to quit apps you're done with. macOS handles the "
              "rest."));
    EXPECT_TRUE(findDescribed("Paint", "1.2 MB"));
    EXPECT_TRUE(findDescribed("Unread", "—"));

    view->mode = Mode::home;
    ASSERT_TRUE(comesTo([&] { return shows("Overview"); }));
    view->mode = Mode::performance;
    EXPECT_TRUE(comesTo([&] { return isListed("Paint"); })) << "the result stays";
}

TEST_F(PerformanceTest, AnApplicationThatQuitsLeavesAndTheKeyboardStaysNearItsPlace) {
    const RunningProgram first(executableOf(machine, "/Applications/First.app"));
    const RunningProgram second(executableOf(machine, "/Applications/Second.app"));
    scan();
    ASSERT_EQ(view->performanceModel->apps().size(), 2);
    const auto upper = nameOf(0);
    const auto lower = nameOf(1);
    key(Qt::Key_Tab);
    EXPECT_TRUE(isAtQuitOf(upper)) << focused().toStdString();
    key(Qt::Key_Down);
    EXPECT_TRUE(isAtQuitOf(lower));
    key(Qt::Key_Up);
    settle();
    key(Qt::Key_Space);
    ASSERT_TRUE(comesTo([&] { return isBusy(upper); })) << told();
    EXPECT_FALSE(isBusy(lower)) << "only one spins";
    EXPECT_TRUE(isAtQuitOf(upper));
    EXPECT_TRUE(shows("Asked " + upper + " to quit. Its memory frees as it closes."));
    ASSERT_TRUE(comesTo([&] { return !isListed(upper); }));
    EXPECT_TRUE(isListed(lower));
    EXPECT_TRUE(comesTo([&] { return isAtQuitOf(lower); })) << focused().toStdString();
    EXPECT_TRUE(showsFocus());

    settle();
    key(Qt::Key_Return);
    ASSERT_TRUE(comesTo([&] { return !isListed(lower); }));
    EXPECT_TRUE(comesTo([&] { return focused() == "Rescan"; })) << focused().toStdString();
    EXPECT_TRUE(shows("Using the most memory"));
    key(Qt::Key_Tab);
    EXPECT_EQ(focused(), "Dismiss");
    key(Qt::Key_Space);
    EXPECT_TRUE(comesTo([&] { return !shows("Dismiss"); }));
    EXPECT_EQ(view->performanceModel->lastMessage(), std::nullopt);
    EXPECT_EQ(focused(), "Rescan");
}

TEST_F(PerformanceTest, NoRowMovesUnderThePointerButWhereOneGoesAndThenAPressIsTooSoon) {
    const RunningProgram first(executableOf(machine, "/Applications/First.app"));
    const RunningProgram second(executableOf(machine, "/Applications/Second.app"));
    scan();
    const auto upper = nameOf(0);
    const auto lower = nameOf(1);
    settle();
    const auto place = placeOf(findDescribed("Quit", upper));
    const auto placeBelow = placeOf(findDescribed("Quit", lower));
    clickAt(place);
    const auto message = "Asked " + upper + " to quit. Its memory frees as it closes.";
    ASSERT_TRUE(comesTo([&] { return isBusy(upper) && shows(message); })) << told();
    ASSERT_TRUE(comesToRest());
    EXPECT_EQ(placeOf(findDescribed("Quit", lower)), placeBelow) << "the banner moves no row";

    ASSERT_TRUE(comesTo([&] { return placeOf(findDescribed("Quit", lower)) == place; }));
    clickAt(place);
    EXPECT_FALSE(isBusy(lower)) << "the row has only just come here";
    EXPECT_TRUE(shows(message));
    settle();
    clickAt(place);
    EXPECT_TRUE(comesTo([&] { return isBusy(lower); }));
}

TEST_F(PerformanceTest, OneThatDoesNotQuitStaysAndIsAskedOnce) {
    const RunningProgram stubborn(executableOf(machine, "/Applications/Stubborn.app"),
                                  OnRequestToEnd::ignore);
    scan();
    settle();
    press(findDescribed("Quit", "Stubborn"), "Quit");
    ASSERT_TRUE(comesTo([&] { return isBusy("Stubborn"); }));
    view->performanceModel->lastMessage = std::nullopt;
    press(findDescribed("Quit", "Stubborn"), "Quit");
    EXPECT_EQ(view->performanceModel->lastMessage(), std::nullopt) << "the first is under way";
    EXPECT_TRUE(comesTo([&] { return !isBusy("Stubborn"); }));
    EXPECT_TRUE(isListed("Stubborn"));
}

TEST_F(PerformanceTest, TheStartupPanelLeadsToEachItemAndToTheSettings) {
    scan();
    click("Startup");
    ASSERT_TRUE(comesTo([&] { return isListed("org.sync"); })) << told();
    EXPECT_TRUE(
        shows("These launch at login or run in the background. Fewer of them means a faster "
              "startup. Reveal one to see what it is, or manage it in System Settings."));
    EXPECT_TRUE(findDescribed("org.sync", "/bin/sync. You"));
    EXPECT_TRUE(findDescribed("org.db", "/opt/db. System"));
    press(findDescribed("Reveal", "org.sync"), "Reveal");
    EXPECT_EQ(revealedPaths, std::vector{machine.path("~/Library/LaunchAgents/sync.plist")});
    for (int number = 0; number < 100; ++number)
        machine.text("/Library/LaunchAgents/x" + std::to_string(number) + ".plist",
                     "<plist version=\"1.0\"><dict/></plist>");
    click("Rescan");
    ASSERT_TRUE(comesTo([&] { return isListed("x0"); })) << "the panel stays";
    click("Open Login Items Settings");
    EXPECT_EQ(openedUrls, std::vector<std::string>{
                              "x-apple.systempreferences:com.apple.LoginItems-Settings.extension"});

    key(Qt::Key_Tab);
    for (int number = 0; number < 101; ++number) key(Qt::Key_Down);
    EXPECT_TRUE(findDescribed("Reveal", "x99")->state().focused)
        << "the arrows go through all, however long the list is";
}

}  // namespace
}  // namespace tidewell::test
