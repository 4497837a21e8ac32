#include <QtQml/qqml.h>
#include <QtQml/qqmlengine.h>

#include <algorithm>
#include <limits>

#include "support/footprint.h"
#include "window_test.h"

namespace tidewell::test {
namespace {

class SoakTest : public WindowTest {
 protected:
    SoakTest() {
        machine.folder("~/.cargo");
        machine.file("~/.npm/_cacache/one", 3 * megabyte);
        machine.file("~/Movies/holiday.mov", 90 * megabyte);
        machine.application("/Applications/Notes.app", {{"CFBundleName", "Notes"}});
    }

    void goThroughSections() {
        for (const auto mode : allModes) {
            click(QString::fromUtf8(title(mode).data()), QAccessible::Button);
            ASSERT_TRUE(comesTo([&] { return view->mode() == mode; }));
        }
        click("Home", QAccessible::Button);
    }

    /// Through all sections, a scan of everything, and through all that it found.
    void goAround() {
        goThroughSections();
        view->smartScan->start();
        ASSERT_TRUE(comesTo([&] { return shows("All scanned."); }));
        goThroughSections();
        view->smartScan->reset();
    }

    /// Of so many rounds: where one ends, a screen may be on its way out.
    std::size_t lowestHeapOf(int rounds) {
        auto lowest = std::numeric_limits<std::size_t>::max();
        for (int round = 0; round < rounds; ++round) {
            goAround();
            qmlEngine(&window->window())->collectGarbage();
            lowest = std::min(lowest, heapInUse());
        }
        return lowest;
    }
};

TEST_F(SoakTest, GoingAroundTheSectionsManyTimesLeavesNothingBehind) {
    constexpr std::size_t oneScreen = std::size_t{256} * 1024;
    start();
    for (int warmUp = 0; warmUp < 4; ++warmUp) goAround();
    const auto heap = lowestHeapOf(4);
    const auto descriptors = openDescriptors();
    for (int round = 0; round < 8; ++round) goAround();
    EXPECT_LT(lowestHeapOf(4), heap + oneScreen);
    EXPECT_EQ(openDescriptors(), descriptors);
    EXPECT_FALSE(hasChildren());
}

}  // namespace
}  // namespace tidewell::test
