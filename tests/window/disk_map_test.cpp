#include "window_test.h"

namespace tidewell::test {
namespace {

class DiskMapTest : public WindowTest {
 protected:
    DiskMapTest() {
        machine.file("~/Movies/Holiday/one.mov", 90 * megabyte);
        machine.file("~/Library/Caches/com.example.Browser/data", 100 * megabyte);
        machine.file("~/Library/Caches/com.example.Browser/more", 9 * megabyte);
        machine.file("~/Documents/thesis.tex", 30 * megabyte);
    }

    void draw() {
        start();
        view->deepScanModel->phase = DeepScanViewModel::Phase::list;
        view->mode = Mode::deepScan;
        click("Map");
        ASSERT_TRUE(comesTo([&] { return branch("Movies"); })) << told();
    }
    QAccessibleInterface* branch(const QString& name) const {
        return find(name, QAccessible::TreeItem);
    }
    void goInto(const QString& name) {
        press(branch(name), name);
        ASSERT_TRUE(comesTo([&] { return !branch(name); })) << told();
    }
    QString inHand() const {
        const auto* map = find("Map of the home folder", QAccessible::Tree);
        return map ? map->text(QAccessible::Description).section(',', 0, 0) : QString();
    }
    const DiskMap& map() const { return view->diskMapModel->map(); }
    ByteCount bytesOf(std::string_view place) const {
        const auto node = map().find(machine.path(place));
        return node ? map()[*node].bytes : -1;
    }
};

TEST_F(DiskMapTest, IsWalkedByPointerAndKeyboard) {
    draw();
    clickAt(placeOf(branch("Movies")));  // the film that fills it is taken in hand
    EXPECT_TRUE(comesTo([&] { return inHand() == "one.mov"; })) << inHand().toStdString();
    key(Qt::Key_Return);  // and its folder is gone into
    ASSERT_TRUE(comesTo([&] { return branch("one.mov") && !branch("Movies"); })) << told();
    EXPECT_EQ(inHand(), "Holiday");
    key(Qt::Key_Escape);
    key(Qt::Key_Escape);
    ASSERT_TRUE(comesTo([&] { return branch("Movies"); })) << told();
    EXPECT_EQ(inHand(), "Movies");
    QStringList met;
    for (const int towards : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down, Qt::Key_Right,
                              Qt::Key_Up, Qt::Key_Left}) {
        key(towards);
        met << inHand();
    }
    for (const auto* name : {"one.mov", "data", "thesis.tex"})
        EXPECT_TRUE(met.contains(name)) << met.join(' ').toStdString();
    click("Your stuff");
    EXPECT_TRUE(comesTo([&] { return isChecked("Your stuff", QAccessible::Button); })) << told();
    click("Reveal in Finder");
    EXPECT_EQ(revealedPaths.size(), 1U);
    click("List");
    EXPECT_TRUE(comesTo([&] { return !branch("Movies"); }));
}

TEST_F(DiskMapTest, LosesWhatGoesToTheTrashAndGetsItBack) {
    draw();
    const auto whole = map()[0].bytes;
    goInto("Library");
    goInto("Caches");
    goInto("com.example.Browser");
    EXPECT_TRUE(shows("Show in Clean"));
    const QString button = "Move com.example.Browser to Trash";
    click(button);  // just now something else stood there
    settle();
    EXPECT_TRUE(machine.has("~/Library/Caches/com.example.Browser/data"));
    const auto place = placeOf(find(button));
    clickAt(place);
    ASSERT_TRUE(comesTo([&] { return machine.has("~/.Trash/com.example.Browser/data"); }));
    clickAt(place);
    ASSERT_TRUE(comesTo([&] { return map()[0].bytes == whole - 109 * megabyte; })) << told();
    EXPECT_FALSE(shows(button));
    EXPECT_TRUE(machine.has("~/Library/Caches"));
    click("Put Back");
    EXPECT_TRUE(comesTo([&] { return map()[0].bytes == whole; }));
    EXPECT_EQ(bytesOf("~/Library/Caches/com.example.Browser/data"), 100 * megabyte);
}

TEST_F(DiskMapTest, AsksBeforeWhatIsDearAndShowsTheRowOfWhatIsNot) {
    draw();
    clickAt(placeOf(branch("Documents")));
    ASSERT_TRUE(comesTo([&] { return inHand() == "thesis.tex"; })) << inHand().toStdString();
    settle();
    click("Move thesis.tex to Trash");
    ASSERT_TRUE(comesTo([&] { return focused() == "Cancel"; })) << told();
    key(Qt::Key_Return);
    EXPECT_TRUE(comesTo([&] { return !shows("Move to Trash?"); }));
    EXPECT_TRUE(machine.has("~/Documents/thesis.tex"));
    clickAt(placeOf(branch("Library")));
    click("Show in Clean");
    EXPECT_TRUE(comesTo([&] { return view->mode() == Mode::clean; }));
}

}  // namespace
}  // namespace tidewell::test
