#include "window_test.h"

namespace tidewell::test {
namespace {

using Phase = CleanupViewModel::Phase;

class CleanTest : public WindowTest {
 protected:
    CleanTest() {
        machine.file("~/.npm/_cacache/one", 3 * megabyte);
        machine.file("~/.gradle/caches/two", 2 * megabyte);
        machine.file("~/.Trash/three", megabyte);
        machine.file("~/Documents/thesis.txt");
    }

    Phase phase() const { return view->cleanupModel->phase(); }
    std::string titleOf(const std::string& id) const {
        const auto* item = findItem(view->cleanupModel->items(), id);
        return item ? item->target.title : "no item " + id;
    }
    QString chip(const std::string& id) const { return QString::fromStdString(titleOf(id)); }
    std::size_t picked() const { return view->cleanupModel->selectedItems().size(); }
    bool isRemoved(const char* path) const { return !machine.has(path); }
};

TEST_F(CleanTest, RunsFromTheScanToTheEndByPointer) {
    start();
    click("Clean", QAccessible::Button);
    click("Scan My Mac");
    ASSERT_TRUE(comesTo([&] { return phase() == Phase::review; }));
    ASSERT_EQ(view->cleanupModel->items().size(), 3);
    ASSERT_TRUE(comesTo([&] { return shows("Found 6.3 MB of junk."); }));
    EXPECT_EQ(picked(), 2) << "the Trash is not ticked by itself";
    press("Clean Up");
    ASSERT_FALSE(QTest::qWaitFor([&] { return phase() != Phase::review; }, 100))
        << "the button has just come under the pointer";

    click("None");
    EXPECT_EQ(picked(), 0);
    EXPECT_TRUE(comesTo([&] { return !isEnabled("Clean Up"); }));
    click("Clean Up");
    EXPECT_EQ(phase(), Phase::review) << "there is nothing to clean";
    click("All");
    EXPECT_EQ(picked(), 3);
    click("Safe only");
    EXPECT_EQ(picked(), 2);

    const auto npm = chip("npm-cache");
    ASSERT_TRUE(comesTo([&] { return isChecked(npm); }));
    click(npm);
    EXPECT_EQ(picked(), 1);
    EXPECT_TRUE(comesTo([&] { return !isChecked(npm); }));
    EXPECT_TRUE(comesTo([&] {
        const auto* category = find("Developer Caches", QAccessible::CheckBox);
        return category && category->state().checkStateMixed &&
               category->text(QAccessible::Description).startsWith("1 of 2");
    }));
    click("Developer Caches", QAccessible::CheckBox);
    EXPECT_EQ(picked(), 2) << "a mixed category becomes full";
    click("System", QAccessible::Button);
    EXPECT_TRUE(comesTo([&] { return shows(chip("trash")); }));
    EXPECT_FALSE(isChecked(chip("trash")));

    ASSERT_TRUE(comesTo([&] { return isEnabled("Clean Up"); }));
    settle();
    click("Clean Up");
    ASSERT_TRUE(comesTo([&] { return phase() == Phase::done; }));
    EXPECT_TRUE(isRemoved("~/.npm/_cacache/one"));
    EXPECT_TRUE(isRemoved("~/.gradle/caches/two"));
    EXPECT_TRUE(machine.has("~/.Trash/three"));
    EXPECT_TRUE(machine.has("~/Documents/thesis.txt"));
    ASSERT_TRUE(comesTo([&] { return shows("All clean!"); }));
    EXPECT_FALSE(shows("A few items wouldn't budge"));

    click("Done");
    EXPECT_EQ(phase(), Phase::idle);
    EXPECT_TRUE(comesTo([&] { return shows("+5.2 MB so far"); }));
}

TEST_F(CleanTest, RunsFromTheScanToTheEndByKeyboard) {
    start();
    key(Qt::Key_2, Qt::ControlModifier);
    ASSERT_TRUE(comesTo([&] { return focused() == "Scan My Mac"; }));
    key(Qt::Key_Space);
    ASSERT_TRUE(comesTo([&] { return phase() == Phase::review; }));
    const auto npm = chip("npm-cache");
    ASSERT_TRUE(comesTo([&] { return focused() == npm; }))
        << "the keyboard is at " << focused().toStdString() << " and never at Clean Up";
    key(Qt::Key_Space);
    EXPECT_EQ(picked(), 1);
    key(Qt::Key_Down);
    EXPECT_EQ(focused(), chip("gradle-caches"));
    EXPECT_TRUE(showsFocus());
    key(Qt::Key_Down);
    EXPECT_EQ(focused(), chip("gradle-caches")) << "it is the last of its category";
    key(Qt::Key_Tab);
    EXPECT_EQ(focused(), "Back");
    key(Qt::Key_Tab);
    EXPECT_EQ(focused(), "Clean Up");
    settle();
    key(Qt::Key_Return);
    ASSERT_TRUE(comesTo([&] { return phase() == Phase::done; }));
    EXPECT_TRUE(machine.has("~/.npm/_cacache/one"));
    EXPECT_TRUE(isRemoved("~/.gradle/caches/two"));
    ASSERT_TRUE(comesTo([&] { return focused() == "Done"; }));
    key(Qt::Key_Return);
    EXPECT_EQ(phase(), Phase::idle);
}

TEST_F(CleanTest, WhatStaysBehindIsNamed) {
    start();
    view->mode = Mode::clean;
    view->cleanupModel->failedTitles = {"Trash", "iOS Backups"};
    view->cleanupModel->phase = Phase::done;
    ASSERT_TRUE(comesTo([&] { return shows("A few items wouldn't budge"); }));
    EXPECT_TRUE(find("A few items wouldn't budge")
                    ->text(QAccessible::Description)
                    .startsWith("Trash, iOS Backups. macOS may need"));
    EXPECT_TRUE(shows("All done")) << "nothing was freed";
}

TEST_F(CleanTest, WhatWasLeftOutIsSaidWhetherThereIsAListOrNot) {
    start();
    view->mode = Mode::clean;
    view->cleanupModel->leftOut = LeftOut{.silentMounts = {"/a"}};
    view->cleanupModel->phase = Phase::review;
    ASSERT_TRUE(comesTo([&] { return shows("/a does not answer and was left out."); }));
    click("Scan Again");
    ASSERT_TRUE(comesTo([&] { return shows(chip("npm-cache")); }));
    EXPECT_FALSE(shows("/a does not answer and was left out."));
    view->cleanupModel->leftOut = LeftOut{.silentMounts = {"/a", "/b"}};
    EXPECT_TRUE(comesTo([&] { return shows("/a, /b do not answer and were left out."); }));
}

}  // namespace
}  // namespace tidewell::test
