#include "platform/desktop_entry.h"

#include <gtest/gtest.h>

#include "support/sample_machine.h"

namespace tidewell {
namespace {

using Words = std::vector<std::string>;

TEST(DesktopEntry, IsReadFromItsOwnGroupWithQuotesAndEscapes) {
    const auto entry = parseDesktopEntry(
        "# a comment\nName=Before\n[Desktop Entry]\r\nType = Application\nName=A\\sB\nName[de]=C\n"
        "Exec=\"/opt/my \\\\\"app\" --flag %U\nNoDisplay=true\nOnlyShowIn=GNOME;;KDE;\n"
        "X-GNOME-Autostart-enabled=false\n[Other]\nHidden=true\nExec=other\n");
    EXPECT_EQ(entry.type, "Application");
    EXPECT_EQ(entry.name, "A B");
    EXPECT_EQ(commandWords(entry.exec), (Words{"/opt/my \"app", "--flag"}));
    EXPECT_EQ(entry.onlyShowIn, (Words{"GNOME", "KDE"}));
    EXPECT_FALSE(entry.isShownInMenus);
    EXPECT_FALSE(entry.startsWithSession);
    EXPECT_FALSE(entry.isHidden);
    EXPECT_EQ(parseDesktopEntry("Type=Application\nExec").type, "");
    EXPECT_EQ(commandWords("  a \"\" %f 100%% \"b c\"d"), (Words{"a", "", "100%%", "b cd"}));
    EXPECT_EQ(commandWords(""), Words{});
}

TEST(DesktopEntry, IsFoundOnTheMachineTheUsersOwnBeforeTheSystems) {
    const test::SampleMachine machine;
    const auto& host = machine.host();
    machine.tool("/usr/bin/paint", "");
    machine.tool("/opt/sketch/sketch", "");
    machine.text("/usr/bin/readme", "no program");
    machine.link("/usr/bin/outside", "/bin/sh");
    machine.text("~/.local/share/applications/gone.desktop", "[Desktop Entry]\nHidden=true\n");
    machine.text("~/.local/share/applications/a/paint.desktop",
                 "[Desktop Entry]\nType=Application\nName=Mine\n");
    machine.text("/usr/share/applications/gone.desktop", "[Desktop Entry]\nType=Application\n");
    machine.text("/usr/share/applications/a-paint.desktop", "[Desktop Entry]\nType=Application\n");
    machine.text("/usr/share/applications/page.desktop", "[Desktop Entry]\nType=Link\n");
    machine.text("/usr/local/share/applications/huge.desktop",
                 "[Desktop Entry]\nType=Application\n" + std::string(2 << 20, '#'));
    const auto entries = applicationEntries(host);
    ASSERT_EQ(entries.size(), 1);
    EXPECT_EQ(entries.front().id, "a-paint");
    EXPECT_EQ(entries.front().entry.name, "Mine");

    EXPECT_EQ(namedProgram(host, "paint"), machine.path("/usr/bin/paint"));
    EXPECT_EQ(namedProgram(host, "/opt/sketch/sketch"), machine.path("/opt/sketch/sketch"));
    for (const char* none : {"", "readme", "outside", "bin/paint", "/usr", "/missing", "../bin/sh"})
        EXPECT_EQ(namedProgram(host, none), std::nullopt) << none;
    EXPECT_TRUE(isLauncher("/usr/bin/python3.11"));
    EXPECT_FALSE(isLauncher("/usr/bin/shotwell"));
}

}  // namespace
}  // namespace tidewell
