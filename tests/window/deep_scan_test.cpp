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
    settle();
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

    click("Put Back");
    EXPECT_TRUE(comesTo([&] { return tells("Put com.example.Browser back where it was."); }))
        << told();
    EXPECT_TRUE(machine.has("~/Library/Caches/com.example.Browser/data"));
    EXPECT_TRUE(shows("Safe to clear"));
    EXPECT_FALSE(shows("Put Back") || shows("In the Trash"));
}

class DeepScanOfALinuxMachine : public WindowTest {
 protected:
    DeepScanOfALinuxMachine() : WindowTest(System::linux) {}
};

TEST_F(DeepScanOfALinuxMachine, HasPutBackOnEachCardOfTheTrash) {
    for (const auto* name : {"one", "two"}) {
        const auto entry = std::string(name);
        machine.file("~/.local/share/Trash/files/" + entry, megabyte);
        machine.text("~/.local/share/Trash/info/" + entry + ".trashinfo",
                     "[Trash Info]\nPath=" + machine.path("~/Videos/") + entry + "\n");
    }
    start();
    view->mode = Mode::deepScan;
    ASSERT_TRUE(comesTo([&] { return focused() == "Deep Scan"; }));
    key(Qt::Key_Return);
    ASSERT_TRUE(comesTo([&] { return findDescribed("Put Back", "Put two back where it was"); }))
        << told();
    settle();
    press(findDescribed("Put Back", "Put two back where it was"), "Put Back");
    EXPECT_TRUE(comesTo([&] { return !find("two", QAccessible::ListItem); })) << told();
    EXPECT_TRUE(machine.has("~/Videos/two"));
    EXPECT_TRUE(find("one", QAccessible::ListItem) && shows("In the Trash"));
}

TEST_F(DeepScanTest, ADoubleClickTrashesOneItemAlthoughTheNextMovesUnderThePointer) {
    machine.file("~/Library/Caches/com.example.Other/data", 80 * megabyte);
    scan();
    settle();
    const auto place = placeOf(find("Move com.example.Browser to Trash"));
    clickAt(place);
    ASSERT_TRUE(comesTo([&] { return placeOf(find("Move com.example.Other to Trash")) == place; }))
        << "neither the banner nor anything else moves the rows, only the one that goes";
    clickAt(place);
    settle();
    EXPECT_TRUE(find("com.example.Other", QAccessible::ListItem));
    EXPECT_TRUE(machine.has("~/Library/Caches/com.example.Other/data"));
    clickAt(place);
    EXPECT_TRUE(comesTo([&] { return machine.has("~/.Trash/com.example.Other/data"); }));
}

TEST_F(DeepScanTest, TheKeyboardGoesOnWhereTheLastItemHasGone) {
    machine.remove("~/Movies/Holiday");
    machine.remove("~/.colima");
    scan();
    settle();
    for (int step = 0; step < 20 && focused() != "Move com.example.Browser to Trash"; ++step)
        key(Qt::Key_Tab);
    key(Qt::Key_Space);
    ASSERT_TRUE(comesTo([&] { return !shows("com.example.Browser"); })) << told();
    EXPECT_TRUE(comesTo([&] { return focused() == "Rescan"; })) << focused().toStdString();
    EXPECT_TRUE(showsFocus());
}

TEST_F(DeepScanTest, AsksBeforeThePersonalAndEnterLeavesItWhereItIs) {
    scan();
    viewBucket("Your stuff", "Holiday");
    settle();
    click("Move Holiday to Trash");
    ASSERT_TRUE(comesTo([&] { return focused() == "Cancel"; })) << told();
    key(Qt::Key_Return);
    ASSERT_TRUE(comesTo([&] { return !shows("Move to Trash?"); }));
    EXPECT_TRUE(machine.has("~/Movies/Holiday/one.mov"));

    press("Move Holiday to Trash");
    ASSERT_TRUE(comesTo([&] { return shows("Move to Trash"); }));
    click("Move to Trash");
    EXPECT_TRUE(shows("Move to Trash?")) << "the question has only just come under the pointer";
    settle();
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
