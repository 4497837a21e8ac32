#include "support/simulator_tools.h"
#include "window_test.h"

namespace tidewell::test {
namespace {

class AdvisorTest : public WindowTest {
 protected:
    AdvisorTest() {
        tools.runtime("A",
                      R"({"name":"iOS 16.4","sizeBytes":5000000000,"runtimeIdentifier":"x.16"})");
        tools.runtime("B", R"({"name":"iOS 17.5","sizeBytes":7000000000,"deletable":false})");
        tools.snapshots("com.apple.TimeMachine.2026-01-02-030405.local\n");
    }

    void scan() {
        start();
        view->mode = Mode::advisor;
        click("Check My Mac");
        ASSERT_TRUE(comesTo([&] { return shows("12 GB of easy wins found."); })) << told();
    }
    /// The button "Delete…" of a runtime.
    QAccessibleInterface* deleteButton(const QString& runtime) const {
        auto* row = find(runtime, QAccessible::ListItem);
        return row ? findAccessible(row,
                                    [](QAccessibleInterface& place) {
                                        return place.text(QAccessible::Name) == "Delete…";
                                    })
                   : nullptr;
    }

    const SimulatorTools tools{machine};
};

TEST_F(AdvisorTest, ARuntimeGoesOnlyOnceTheUserHasSaidSo) {
    scan();
    ASSERT_TRUE(comesTo([&] { return deleteButton("iOS 17.5"); })) << told();
    EXPECT_FALSE(isEnabled(deleteButton("iOS 17.5")));
    press(deleteButton("iOS 16.4"), "Delete…");
    ASSERT_TRUE(comesTo([&] { return focused() == "Cancel"; }));
    key(Qt::Key_Return);
    ASSERT_TRUE(comesTo([&] { return !shows("Delete this Simulator runtime?"); }));
    EXPECT_TRUE(machine.has("/state/runtimes/A")) << "Enter destroys nothing";

    press(deleteButton("iOS 16.4"), "Delete…");
    ASSERT_TRUE(comesTo([&] { return focused() == "Cancel"; }));
    settle();
    click("Delete Runtime");
    ASSERT_TRUE(comesTo([&] {
        return shows("Deleted iOS 16.4. If the space doesn't show up, a restart releases it.");
    })) << told();
    EXPECT_FALSE(machine.has("/state/runtimes/A"));
    EXPECT_TRUE(shows("7 GB of easy wins found."));
    EXPECT_TRUE(comesTo([&] { return !find("iOS 16.4", QAccessible::ListItem); }));
}

TEST_F(AdvisorTest, AnActionThatCostsNothingIsDoneAtOnceAndItsCardGoes) {
    const QString outcome =
        "macOS is purging snapshots now. Space shows up over the next few minutes.";
    scan();
    settle();
    click("Thin Snapshots");
    ASSERT_TRUE(comesTo([&] { return shows(outcome); })) << told();
    EXPECT_EQ(machine.contentOf("/state/snapshots"), "");
    EXPECT_TRUE(comesTo([&] { return !shows("Time Machine local snapshots"); }));
    click("Rescan");
    EXPECT_TRUE(comesTo([&] { return shows("12 GB of easy wins found.") && !shows(outcome); }));
    EXPECT_FALSE(shows("Thin Snapshots"));
}

TEST_F(AdvisorTest, APressThatComesTooSoonMeetsNoCardThatHasMovedUp) {
    tools.devices(R"({"devices":{"x":[{"isAvailable":false}]}})");
    machine.remove("/state/runtimes/A");
    machine.remove("/state/runtimes/B");
    start();
    view->mode = Mode::advisor;
    click("Check My Mac");
    ASSERT_TRUE(comesTo([&] { return shows("Remove All"); })) << told();
    settle();
    for (int step = 0; step < 20 && focused() != "Remove All"; ++step) key(Qt::Key_Tab);
    key(Qt::Key_Space);
    ASSERT_TRUE(comesTo([&] { return !shows("Remove All"); })) << told();
    EXPECT_TRUE(comesTo([&] { return focused() == "Thin Snapshots"; })) << focused().toStdString();
    key(Qt::Key_Space);
    press("Thin Snapshots");
    settle();
    EXPECT_TRUE(shows("Thin Snapshots"));
    key(Qt::Key_Space);
    ASSERT_TRUE(comesTo([&] { return shows("You're all good"); })) << told();
    EXPECT_TRUE(comesTo([&] { return focused() == "Rescan"; })) << focused().toStdString();
    EXPECT_TRUE(showsFocus());
}

}  // namespace
}  // namespace tidewell::test
