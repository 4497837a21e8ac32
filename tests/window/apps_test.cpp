#include <QtGui/qimage.h>

#include "kit/qt/bundle_icons.h"
#include "window_test.h"

namespace tidewell::test {
namespace {

using Phase = AppsViewModel::Phase;

class AppsTest : public WindowTest {
 protected:
    AppsTest() {
        machine.application("/Applications/Postcards.app",
                            {{"CFBundleIdentifier", "com.example.postcards"},
                             {"CFBundleShortVersionString", "4.2"}},
                            2 * megabyte);
        machine.file("~/Library/Caches/com.example.postcards/data", megabyte);
        machine.lastUsed("/Applications/Postcards.app", 200);
        machine.application("/Applications/Atlas.app", {{"CFBundleIdentifier", "org.atlas.Atlas"}},
                            3 * megabyte);
        machine.lastUsed("/Applications/Atlas.app", 1);
    }

    AppsViewModel& model() const { return *view->appsModel; }
    void scan() {
        start();
        view->mode = Mode::apps;
        click("Scan Apps");
        ASSERT_TRUE(comesTo([&] { return find("Postcards", QAccessible::ListItem); })) << told();
    }
    int left(const QString& app) const {
        const auto* card = find(app, QAccessible::ListItem);
        return card ? card->rect().left() : -1;
    }
};

TEST_F(AppsTest, AnAppGoesWithItsLeftoversOnceTheSheetIsConfirmed) {
    scan();
    EXPECT_TRUE(shows("2 apps · 5.3 MB. Deletes go to the Trash, undo anytime.")) << told();
    EXPECT_TRUE(findDescribed("Postcards", "unused"));
    EXPECT_FALSE(findDescribed("Atlas", "unused"));

    click("Uninstall Postcards");
    ASSERT_TRUE(comesTo([&] { return focused() == "Cancel"; })) << told();
    EXPECT_TRUE(shows("2 items · 3.1 MB will move to the Trash")) << told();
    EXPECT_TRUE(comesTo([&] { return findDescribed("com.example.postcards", "Cache. 1 MB"); }));
    EXPECT_TRUE(machine.has("/Applications/Postcards.app"));
    click("Move to Trash");
    EXPECT_TRUE(shows("Uninstall Postcards?")) << "the sheet has only just come under the pointer";
    settle();
    click("Move to Trash");
    ASSERT_TRUE(comesTo([&] { return shows("Moved Postcards to the Trash"); })) << told();
    EXPECT_FALSE(machine.has("/Applications/Postcards.app"));
    EXPECT_FALSE(machine.has("~/Library/Caches/com.example.postcards"));
    EXPECT_TRUE(machine.has("~/.Trash/Postcards.app"));
    EXPECT_TRUE(comesTo([&] { return !find("Postcards", QAccessible::ListItem); }));
    EXPECT_TRUE(find("Atlas", QAccessible::ListItem));

    click("Put Back");
    ASSERT_TRUE(comesTo([&] { return find("Postcards", QAccessible::ListItem); })) << told();
    EXPECT_TRUE(machine.has("/Applications/Postcards.app"));
    EXPECT_TRUE(machine.has("~/Library/Caches/com.example.postcards/data"));
    EXPECT_FALSE(machine.has("~/.Trash/Postcards.app") || shows("Put Back"));

    click("Dismiss");
    EXPECT_TRUE(comesTo([&] { return !shows("Dismiss"); }));
}

TEST_F(AppsTest, EscapeLeavesTheAppWhereItIsAndGivesTheKeyboardBack) {
    scan();
    ASSERT_TRUE(comesToRest());
    for (int step = 0; step < 20 && focused() != "Uninstall Postcards"; ++step) key(Qt::Key_Tab);
    ASSERT_EQ(focused(), "Uninstall Postcards");
    key(Qt::Key_Return);
    ASSERT_TRUE(comesTo([&] { return shows("Uninstall Postcards?"); }));
    ASSERT_TRUE(comesTo([&] { return focused() == "Cancel"; }));
    key(Qt::Key_Escape);
    ASSERT_TRUE(comesTo([&] { return !shows("Uninstall Postcards?"); }));
    EXPECT_TRUE(comesTo([&] { return focused() == "Uninstall Postcards"; }))
        << focused().toStdString();
    EXPECT_TRUE(machine.has("/Applications/Postcards.app"));
    EXPECT_FALSE(model().lastResult());
}

TEST_F(AppsTest, TheKeyboardGoesOnToTheNextCardAndFromTheLastToTheButton) {
    scan();
    ASSERT_TRUE(comesToRest());
    const auto top = find("Atlas", QAccessible::ListItem)->rect().top();
    const auto uninstall = [&](const QString& app) {
        for (int step = 0; step < 20 && focused() != "Uninstall " + app; ++step) key(Qt::Key_Tab);
        key(Qt::Key_Return);
        ASSERT_TRUE(comesTo([&] { return focused() == "Cancel"; })) << told();
        settle();
        key(Qt::Key_Tab);
        key(Qt::Key_Return);
        ASSERT_TRUE(comesTo([&] { return !find(app, QAccessible::ListItem); })) << told();
    };
    uninstall("Postcards");
    EXPECT_TRUE(comesTo([&] { return focused() == "Uninstall Atlas"; })) << focused().toStdString();
    ASSERT_TRUE(comesTo([&] { return shows("Moved Postcards to the Trash"); }));
    ASSERT_TRUE(comesToRest());
    EXPECT_EQ(find("Atlas", QAccessible::ListItem)->rect().top(), top)
        << "the banner moves no card";
    uninstall("Atlas");
    EXPECT_TRUE(comesTo([&] { return focused() == "Scan Apps"; })) << focused().toStdString();
    EXPECT_TRUE(showsFocus());
}

TEST_F(AppsTest, TheMenuSortsTheCards) {
    scan();
    ASSERT_TRUE(comesToRest());
    EXPECT_LT(left("Postcards"), left("Atlas")) << "the least used first";
    click("Least used");
    click("Name");
    EXPECT_EQ(model().sortOrder(), SortOrder::name);
    EXPECT_TRUE(comesTo([&] { return left("Atlas") < left("Postcards"); }));
}

TEST_F(AppsTest, ADamagedIconIsShownAsNone) {
    machine.application("/Applications/Odd.app", {{"CFBundleIconFile", "Odd"}});
    const std::string picture("ic07\0\0\0\x14\x89PNG\r\n\x1a\nrest", 20);
    machine.text("/Applications/Odd.app/Contents/Resources/Odd.icns",
                 std::string("icns\0\0\0\x1c", 8) + picture);
    const auto address = BundleIcons::address(machine.path("/Applications/Odd.app"));
    QSize size;
    BundleIcons().requestImage(address.section('/', -1), &size, {64, 64});
    EXPECT_EQ(size, QSize(1, 1));
}

}  // namespace
}  // namespace tidewell::test
