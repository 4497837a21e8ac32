#include "shell/screens/welcome_content.h"
#include "window_test.h"

namespace tidewell::test {
namespace {

class WelcomeTest : public WindowTest {
 protected:
    bool isOnboardedOnDisk() const {
        return UserDefaults(machine.host().configurationDirectory).boolean("hasOnboarded");
    }
};

TEST_F(WelcomeTest, TheFirstRunScreenHasTheWindowUntilItsButtonIsPressed) {
    startForTheFirstTime();
    EXPECT_EQ(focused(), "Get Started");
    key(Qt::Key_Tab);
    key(Qt::Key_Tab, Qt::ShiftModifier);
    key(Qt::Key_Escape);
    key(Qt::Key_2, Qt::ControlModifier);
    click("Apps", QAccessible::Button);
    EXPECT_EQ(focused(), "Get Started");
    EXPECT_EQ(view->mode(), Mode::home) << "what lies below does not react";
    EXPECT_FALSE(isOnboardedOnDisk());

    key(Qt::Key_Return);
    EXPECT_TRUE(isOnboardedOnDisk());
    ASSERT_TRUE(comesTo([&] { return focused() == "Scan My Mac"; })) << focused().toStdString();
    EXPECT_TRUE(comesTo([&] { return !shows("Get Started"); }));
    click("Apps", QAccessible::Button);
    EXPECT_EQ(view->mode(), Mode::apps);
}

TEST_F(WelcomeTest, TheAboutSheetIsLeftByEscapeAndByItsButtonAndTheKeyboardReturns) {
    start();
    auto* row = find("About Tidewell", QAccessible::Button);
    ASSERT_NE(row, nullptr);
    qobject_cast<QQuickItem*>(row->object())->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Return);
    ASSERT_TRUE(comesTo([&] { return shows("Made with care for your Mac."); }));
    EXPECT_TRUE(shows(QString::fromStdString(versionLine(machine.host().ownBundle))));
    EXPECT_EQ(focused(), "Close");
    key(Qt::Key_Escape);
    EXPECT_FALSE(view->showAbout());
    ASSERT_TRUE(comesTo([&] { return !shows("Made with care for your Mac."); }));
    EXPECT_EQ(focused(), "About Tidewell");

    application->bridge.showAbout();
    ASSERT_TRUE(comesTo([&] { return focused() == "Close"; }));
    click("Close");
    EXPECT_FALSE(view->showAbout());
    EXPECT_TRUE(comesTo([&] { return focused() == "About Tidewell"; }));
}

TEST_F(WelcomeTest, TheAboutSheetsLinksOpenTheirPages) {
    start();
    application->bridge.showAbout();
    std::vector<std::string> targets;
    for (const auto& link : aboutLinks()) {
        click(QString::fromUtf8(link.label.data(), static_cast<qsizetype>(link.label.size())));
        targets.emplace_back(link.target);
    }
    EXPECT_EQ(openedUrls, targets);
    EXPECT_TRUE(view->showAbout());
}

}  // namespace
}  // namespace tidewell::test
