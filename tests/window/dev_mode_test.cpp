#include "window_test.h"

namespace tidewell::test {
namespace {

using Phase = DevModeViewModel::Phase;

class DevModeTest : public WindowTest {
 protected:
    DevModeTest() {
        machine.file("~/.npm/_cacache/one", 3 * megabyte);
        machine.file("~/.gradle/caches/two", 2 * megabyte);
        machine.text("~/Code/engine/Cargo.toml", "[package]");
        machine.file("~/Code/engine/target/debug/engine", 4 * megabyte);
        machine.file("~/Code/engine/src/main.rs");
        machine.file("~/.ollama/models/weights", 600 * megabyte);
    }

    DevModeViewModel& model() const { return *view->devModeModel; }
    void scan() {
        start();
        view->mode = Mode::devMode;
        click("Scan Dev & AI");
        ASSERT_TRUE(comesTo([&] { return model().phase() == Phase::review; }));
        ASSERT_TRUE(comesTo([&] { return shows("Found 9.4 MB to clear."); })) << told();
    }
    void viewGroup(const QString& group, const QString& item, QAccessible::Role role) {
        click(group, QAccessible::Button);
        ASSERT_TRUE(comesTo([&] { return find(item, role); })) << told();
    }
    std::string picked() const {
        std::string titles;
        for (const auto& item : model().selectedItems()) titles += item.target.title + "|";
        return titles;
    }
};

TEST_F(DevModeTest, WhatIsPickedInAGroupGoesAndTheWorkBesideItStays) {
    scan();
    EXPECT_EQ(model().selectedItems().size(), 2) << picked();
    viewGroup("Rust", "target · engine", QAccessible::CheckBox);
    EXPECT_TRUE(findDescribed("target · engine", "review"));
    EXPECT_FALSE(isChecked("target · engine"));
    click("target · engine", QAccessible::CheckBox);
    EXPECT_TRUE(comesTo([&] { return shows("3 picked"); }));
    click("None");
    EXPECT_TRUE(comesTo([&] { return shows("0 picked"); }));
    EXPECT_TRUE(comesTo([&] { return !isEnabled("Clean Up"); }));

    press("Safe only");
    EXPECT_EQ(model().selectedItems().size(), 2) << picked();
    viewGroup("Node & JS", "npm cache", QAccessible::CheckBox);
    click("npm cache", QAccessible::CheckBox);
    ASSERT_TRUE(comesTo([&] { return shows("1 picked"); })) << picked();
    settle();
    click("Clean Up");
    ASSERT_TRUE(comesTo([&] { return shows("Freed 2.1 MB"); })) << told();
    EXPECT_FALSE(machine.has("~/.gradle/caches/two"));
    EXPECT_TRUE(machine.has("~/.npm/_cacache/one"));
    EXPECT_TRUE(machine.has("~/Code/engine/target/debug/engine"));
    click("Done");
    EXPECT_TRUE(comesTo([&] { return shows("Scan Dev & AI"); }));
}

TEST_F(DevModeTest, ModelsAreShownWhereTheyLieAndNeverPicked) {
    scan();
    viewGroup("Large AI models", "Ollama models", QAccessible::ListItem);
    EXPECT_FALSE(find("Ollama models", QAccessible::CheckBox));
    EXPECT_FALSE(shows("Smart"));
    click("Reveal");
    EXPECT_EQ(revealedPaths, std::vector{machine.path("~/.ollama/models")});
    press("All");
    EXPECT_EQ(model().selectedItems().size(), 3) << picked();
    EXPECT_TRUE(findDescribed("Never touches", "Your projects, code and git"));
}

}  // namespace
}  // namespace tidewell::test
