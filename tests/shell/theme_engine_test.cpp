#include "shell/theme_engine.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/volume.h"
#include "support/sample_machine.h"
#include "support/test_loop.h"

namespace tidewell {
namespace {

TEST(ThemePalettes, ChangeAtTheirLowerBounds) {
    constexpr auto notANumber = std::numeric_limits<double>::quiet_NaN();
    const struct {
        double free;
        const char* label;
    } rows[] = {{1.5, "Healthy"},        {0.30, "Healthy"},       {0.2999, "Filling up"},
                {0.15, "Filling up"},    {0.1499, "Running low"}, {0.08, "Running low"},
                {0.0799, "Critical"},    {0.0, "Critical"},       {-1.0, "Critical"},
                {notANumber, "Critical"}};
    for (const auto& row : rows)
        EXPECT_EQ(themePalette(row.free, System::macOS).label, row.label) << row.free;
    EXPECT_EQ(themePalette(0, System::linux).healthRGB, destructiveRed);
}

class ThemeEngineTest : public testing::Test {
 protected:
    std::shared_ptr<ThemeEngine> makeEngine(const std::string& home) {
        auto host = machine.host();
        host.home = home;
        return std::make_shared<ThemeEngine>(host, didBecomeActive);
    }

    const test::SampleMachine machine;
    test::TestLoop loop;
    Signal didBecomeActive;
};

TEST_F(ThemeEngineTest, KeepsWhatItKnewWhenTheVolumeCannotBeRead) {
    const std::string noBlocks = "/proc";  // a file system of no size
    ASSERT_EQ(volumeCapacity(noBlocks)->total, 0);
    for (const auto& home : {machine.path("~/missing"), noBlocks}) {
        const auto engine = makeEngine(home);
        EXPECT_EQ(engine->freeBytes(), 0) << home;
        EXPECT_EQ(engine->totalBytes(), 1) << home;
        EXPECT_EQ(engine->freeFraction(), 0.0) << home;
        EXPECT_EQ(engine->palette().label, "Healthy") << home;
    }
    const auto engine = makeEngine(machine.home());
    const auto total = engine->totalBytes();
    int published = 0;
    const auto subscription = engine->willChange.subscribe([&] { ++published; });
    machine.remove("~");
    engine->refresh();
    EXPECT_EQ(published, 0);
    EXPECT_EQ(engine->totalBytes(), total);
}

TEST_F(ThemeEngineTest, ReadsAgainWheneverTheProgramComesToTheFront) {
    auto engine = makeEngine(machine.path("~/later"));
    machine.folder("~/later");
    didBecomeActive.fire();
    EXPECT_EQ(engine->totalBytes(), 1);
    loop.runTurns();
    EXPECT_GT(engine->totalBytes(), 1);

    didBecomeActive.fire();
    engine.reset();
    loop.runTurns();
}

}  // namespace
}  // namespace tidewell
