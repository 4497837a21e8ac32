#include <QtGui/qclipboard.h>
#include <QtGui/qguiapplication.h>

#include <algorithm>

#include "window_test.h"

namespace tidewell::test {
namespace {

using Phase = DeepScanViewModel::Phase;

class DeepScanTest : public WindowTest {
 protected:
    DeepScanTest() {
        machine.file("~/Movies/Holiday/one.mov", 90 * megabyte);
        machine.file("~/Library/Caches/com.example.Browser/data", 100 * megabyte);
        machine.file("~/.colima/disk", 130 * megabyte);
    }

    void scan() {
        start();
        view->mode = Mode::deepScan;
        ASSERT_TRUE(comesTo([&] { return focused() == "Deep Scan"; }));
        key(Qt::Key_Return);
        ASSERT_TRUE(comesTo([&] { return view->deepScanModel->phase() == Phase::list; }));
        ASSERT_TRUE(comesTo([&] { return shows("Safe to clear"); })) << told();
    }
    void viewBucket(const QString& bucket, const QString& item) {
        click(bucket);
        ASSERT_TRUE(comesTo([&] { return find(item, QAccessible::ListItem); })) << told();
    }
    bool tells(const QString& outcome) const { return find(outcome, QAccessible::AlertMessage); }
};

TEST_F(DeepScanTest, TrashesWhatIsSafeAtOnceAndMovesOnToTheNextBucket) {
    scan();
    EXPECT_TRUE(shows("3 big items • 335.5 MB"));
    click("Move com.example.Browser to Trash");
    EXPECT_TRUE(comesTo([&] {
        return tells(
            "Moved com.example.Browser to the Trash • 104.9 MB. Empty the Trash to lock it in.");
    })) << told();
    EXPECT_FALSE(shows("Move to Trash?"));
    EXPECT_TRUE(machine.has("~/.Trash/com.example.Browser/data"));
    EXPECT_FALSE(shows("Safe to clear"));
    EXPECT_TRUE(comesTo([&] { return find("Colima data", QAccessible::ListItem); }));
    EXPECT_FALSE(shows("Move Colima data to Trash"));
}

TEST_F(DeepScanTest, AsksBeforeThePersonalAndEnterLeavesItWhereItIs) {
    scan();
    viewBucket("Your stuff", "Holiday");
    click("Move Holiday to Trash");
    ASSERT_TRUE(comesTo([&] { return focused() == "Cancel"; })) << told();
    key(Qt::Key_Return);
    ASSERT_TRUE(comesTo([&] { return !shows("Move to Trash?"); }));
    EXPECT_TRUE(machine.has("~/Movies/Holiday/one.mov"));

    press("Move Holiday to Trash");
    ASSERT_TRUE(comesTo([&] { return shows("Move to Trash"); }));
    click("Move to Trash");
    EXPECT_TRUE(comesTo([&] { return machine.has("~/.Trash/Holiday/one.mov"); }));
    EXPECT_TRUE(comesTo([&] { return !shows("Your stuff"); }));
}

TEST_F(DeepScanTest, ACommandIsCopiedAndSaysSoForTwoSeconds) {
    scan();
    viewBucket("Containers & VMs", "Colima data");
    click("Copy command");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "docker system prune -a");
    EXPECT_TRUE(comesTo([&] { return shows("Copied"); }));
    EXPECT_TRUE(comesTo([&] { return shows("Copy command"); }));
    click("Reveal in Finder");
    EXPECT_EQ(revealedPaths, std::vector{machine.path("~/.colima")});
}

TEST_F(DeepScanTest, TheKeyboardReachesEveryButtonAndTheBucketIsForgottenElsewhere) {
    scan();
    viewBucket("Containers & VMs", "Colima data");
    std::vector<QString> reached;
    for (int step = 0; step < 14; ++step) {
        key(Qt::Key_Tab);
        reached.push_back(focused());
    }
    for (const auto* name : {"Rescan", "Your stuff", "Copy command", "Reveal in Finder"})
        EXPECT_TRUE(std::ranges::count(reached, name)) << name;
    view->mode = Mode::home;
    ASSERT_TRUE(comesTo([&] { return shows("Overview"); }));
    view->mode = Mode::deepScan;
    EXPECT_TRUE(comesTo([&] { return find("com.example.Browser", QAccessible::ListItem); }));
}

}  // namespace
}  // namespace tidewell::test
