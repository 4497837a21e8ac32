#include "shell/qt/status_item.h"

#include "cleanup/stored_sums.h"
#include "kit/byte_text.h"
#include "platform/volume.h"
#include "shell/qt/status_image.h"
#include "shell/screens/menu_bar_content.h"
#include "support/accessible_tree.h"
#include "window_test.h"

namespace tidewell::test {
namespace {

class StatusItemTest : public WindowTest {
 protected:
    void startWithStatusItem() {
        start();
        item = std::make_unique<StatusItem>(*application);
    }
    void open() const {
        item->togglePopover();
        ASSERT_TRUE(isOpen());
        ASSERT_TRUE(QTest::qWaitForWindowActive(popover().window()));
    }
    /// As the user does who works with the popover alone.
    void openWithTheWindowClosed() const {
        window->window().close();
        open();
    }

    Popover& popover() const { return item->popover(); }
    bool isOpen() const { return popover().isOpen(); }
    QAccessibleInterface* findInPopover(const QString& name) const {
        return findAccessible(*popover().window(), [&](QAccessibleInterface& place) {
            return place.text(QAccessible::Name) == name;
        });
    }
    bool popoverShows(const QString& name) const { return findInPopover(name) != nullptr; }
    void clickInPopover(const QString& name) const {
        QAccessibleInterface* control = nullptr;
        ASSERT_TRUE(comesTo([&] { return (control = findInPopover(name)) != nullptr; }))
            << name.toStdString();
        auto* place = popover().window();
        QTest::mouseClick(place, Qt::LeftButton, {},
                          place->mapFromGlobal(control->rect().center()));
    }
    void keyInPopover(Qt::Key key) const { QTest::keyClick(popover().window(), key); }
    QString focusedInPopover() const {
        auto* control =
            QAccessible::queryAccessibleInterface(popover().window()->activeFocusItem());
        return control ? control->text(QAccessible::Name) : QString();
    }

    std::unique_ptr<StatusItem> item;
};

TEST(StatusImage, IsTheLogoOrWhereThatIsMissingASymbol) {
    for (const auto* file : {logoMarkFile, ":/nowhere.svg"}) {
        const auto icon = statusImage(file);
        EXPECT_TRUE(icon.isMask());
        const auto image = icon.pixmap(18).toImage();
        EXPECT_EQ(image.size(), QSize(18, 18)) << file;
        EXPECT_EQ(qAlpha(image.pixel(0, 0)), 0) << file;
        int inked = 0;
        for (int x = 0; x < image.width(); ++x) inked += qAlpha(image.pixel(x, 12)) > 0 ? 1 : 0;
        EXPECT_GT(inked, 4) << file;
    }
}

TEST_F(StatusItemTest, AClickOpensThePopoverAnewAndAnotherClosesIt) {
    startWithStatusItem();
    open();
    EXPECT_EQ(popover().window()->width(), 300);
    const auto volume = volumeCapacity(machine.home());
    ASSERT_TRUE(volume);
    const auto freeOf = "free of " + QString::fromStdString(byteText(volume->total));
    EXPECT_TRUE(comesTo([&] { return popoverShows(freeOf); }));
    const QPointer<QQuickWindow> first = popover().window();
    item->togglePopover();
    EXPECT_FALSE(isOpen());
    EXPECT_FALSE(first->isVisible());
    open();
    EXPECT_TRUE(comesTo([&] { return first.isNull(); })) << "the next one is made anew";
    keyInPopover(Qt::Key_Escape);
    EXPECT_FALSE(isOpen());
}

TEST_F(StatusItemTest, AnotherWindowClosesItAndTheClickThatDidDoesNotOpenItAgain) {
    startWithStatusItem();
    open();
    window->window().requestActivate();
    ASSERT_TRUE(comesTo([&] { return !isOpen(); }));
    item->togglePopover();
    EXPECT_FALSE(isOpen()) << "it is one click for the user";
    QTest::qWait(400);
    item->togglePopover();
    EXPECT_TRUE(isOpen());
}

TEST_F(StatusItemTest, ACardOpensTheClosedWindowAtItsSection) {
    startWithStatusItem();
    for (const auto section : quickCards) {
        const auto name = QString::fromUtf8(title(section).data());
        openWithTheWindowClosed();
        clickInPopover(name);
        EXPECT_FALSE(isOpen()) << name.toStdString();
        EXPECT_TRUE(window->window().isVisible());
        EXPECT_EQ(view->mode(), section);
    }
}

TEST_F(StatusItemTest, ScanMyMacScansOnceInTheWindow) {
    startWithStatusItem();
    openWithTheWindowClosed();
    auto& scan = *view->smartScan;
    bool hasOvertakenItself = false;
    const auto observer = onChanged(scan.willChange, [&] {
        const bool isBeyondClean = scan.phase() > SmartScanController::Phase::clean;
        hasOvertakenItself |=
            isBeyondClean && scan.cleanup->phase() == CleanupViewModel::Phase::scanning;
    });
    EXPECT_EQ(focusedInPopover(), "Scan My Mac");
    keyInPopover(Qt::Key_Return);
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(window->window().isVisible());
    ASSERT_TRUE(comesTo([&] { return scan.phase() == SmartScanController::Phase::done; }));
    EXPECT_FALSE(hasOvertakenItself);
}

TEST_F(StatusItemTest, TheMenuOpensTheWindowAndScansInIt) {
    startWithStatusItem();
    window->window().close();
    const auto actions = item->menu().actions();
    actions.at(0)->trigger();
    EXPECT_TRUE(window->window().isVisible());
    EXPECT_FALSE(view->smartScan->isRunning());
    actions.at(1)->trigger();
    EXPECT_TRUE(comesTo([&] { return view->smartScan->isRunning(); }));
    view->smartScan->stop();
}

TEST_F(StatusItemTest, TheFullAppOpensWhereItWasLeft) {
    startWithStatusItem();
    view->mode = Mode::apps;
    openWithTheWindowClosed();
    for (const auto* name : {"Open full app", "Clean", "Apps", "Deep Scan", "Advisor"}) {
        keyInPopover(Qt::Key_Tab);
        EXPECT_EQ(focusedInPopover(), name);
    }
    clickInPopover("Open full app");
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(window->window().isVisible());
    EXPECT_EQ(view->mode(), Mode::apps);
}

TEST_F(StatusItemTest, WhatIsReclaimedMeanwhileIsSeenAtOnce) {
    startWithStatusItem();
    open();
    EXPECT_FALSE(popoverShows("5 MB reclaimed"));
    UserDefaults(machine.host().configurationDirectory).add(totalFreedBytesKey, 5'000'000);
    EXPECT_TRUE(comesTo([&] { return popoverShows("5 MB reclaimed"); }));
    UserDefaults(machine.host().configurationDirectory).add(totalFreedBytesKey, 1'000'000);
    EXPECT_TRUE(comesTo([&] { return popoverShows("6 MB reclaimed"); }));
}

}  // namespace
}  // namespace tidewell::test
