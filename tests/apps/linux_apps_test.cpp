#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <tuple>

#include "apps/app_scanner.h"
#include "apps/linux/debian_packages.h"
#include "apps/linux/removal_command.h"
#include "apps/screens/apps_content.h"
#include "apps/uninstall_guard.h"
#include "support/running_program.h"
#include "support/sample_machine.h"

namespace tidewell::test {
namespace {

using namespace std::literals;
using Names = std::vector<std::string>;

constexpr auto appImageStart =
    "\x7F"
    "ELF\2\1\1\0AI\2"sv;

/// A machine with an application of each kind.
class LinuxApps : public testing::Test {
 protected:
    LinuxApps() {
        machine.text("/var/lib/dpkg/status",
                     "Package: editor\nStatus: install ok installed\nInstalled-Size: 2048\n"
                     "Version: 1.2-3\nDescription: x\n .\n\n"
                     "Package: gone\nStatus: deinstall ok config-files\nVersion: 1\n\n"
                     "Package: no-menu\nStatus: install ok installed\nInstalled-Size: 9\n");
        machine.text("/var/lib/dpkg/info/editor:amd64.list",
                     "/.\n/usr/share/applications/org.acme.editor.desktop\n"
                     "/usr/share/applications/editor-settings.desktop\n");
        machine.text("/var/lib/dpkg/info/gone.list", "/usr/share/applications/gone.desktop\n");
        machine.tool("/usr/bin/editor", "");
        systemEntry("org.acme.editor", "Name=Editor\nExec=editor %U\nStartupWMClass=Editor\n");
        systemEntry("editor-settings", "Name=Settings\nExec=editor --settings\n");
        systemEntry("gone", "Name=Gone\nExec=editor\n");
        systemEntry("nobodys", "Name=Nobody's\nExec=editor\n");

        flatpak("~/.local/share/flatpak", "org.acme.Maps", megabyte);
        flatpak("/var/lib/flatpak", "org.acme.Chess", 2 * megabyte);

        machine.text("/var/lib/snapd/desktop/applications/paint_paint.desktop",
                     "[Desktop Entry]\nType=Application\nName=Paint\nExec=/snap/bin/paint\n");
        machine.text("/snap/paint/12/meta/snap.yaml", "name: paint\nversion: '4.5'\n");
        machine.link("/snap/paint/current", "12");
        machine.file("/var/lib/snapd/snaps/paint_12.snap", 3 * megabyte);

        machine.text("~/Downloads/Sketch-2.AppImage", appImageStart);
        machine.text("~/Downloads/not.AppImage", "text");
        machine.tool("~/.local/opt/studio/bin/studio", "");
        ownEntry("acme-studio", "Name=Studio\nExec=" + path("~/.local/opt/studio/bin/studio") +
                                    " %f\nIcon=acme-studio\n");
        machine.file("~/.local/share/icons/hicolor/128x128/apps/acme-studio.png");
    }

    void systemEntry(const std::string& id, const std::string& lines) const {
        entry("/usr/share/applications/" + id + ".desktop", lines);
    }
    void ownEntry(const std::string& id, const std::string& lines) const {
        entry("~/.local/share/applications/" + id + ".desktop", lines);
    }
    void entry(const std::string& path, const std::string& lines) const {
        machine.text(path, "[Desktop Entry]\nType=Application\n" + lines);
    }
    void flatpak(const std::string& installation, const std::string& id, ByteCount size) const {
        const auto folder = installation + "/app/" + id;
        machine.file(folder + "/x86_64/stable/0a1b/files/bin/run", size);
        machine.link(folder + "/x86_64/stable/active", "0a1b");
        machine.link(folder + "/current", "x86_64/stable");
    }
    std::string path(std::string_view machinePath) const { return machine.path(machinePath); }

    AppScanner scanner() const { return {machine.host(), {}}; }
    InstalledApp app(const std::string& id) const {
        for (const auto& each : scanner().scan())
            if (each.id == id || each.name == id) return each;
        throw std::runtime_error("no application " + id);
    }
    /// Below the home folder, with a star where it goes by itself.
    Names leftovers(const std::string& id) const {
        Names lines;
        for (const auto& each : scanner().findLeftovers(app(id)))
            lines.push_back(each.url.substr(machine.home().size() + 1) +
                            (each.isSelected ? "*" : ""));
        std::ranges::sort(lines);
        return lines;
    }

    const SampleMachine machine{System::linux};
};

TEST_F(LinuxApps, AreFoundByWhatTheirInstallersKeep) {
    using Row = std::tuple<std::string, std::string, std::string, ByteCount>;
    std::map<std::string, Row> found;
    double last = 0;
    for (const auto& each : scanner().scan([&last](double fraction) { last = fraction; }))
        found[each.id] = {std::string(nameOf(each.kind)), each.name, each.version.value_or(""),
                          each.sizeBytes};
    EXPECT_EQ(last, 1);
    const std::map<std::string, Row> expected = {
        {"editor", {"package", "Editor", "1.2-3", 2 * megabyte}},
        {"org.acme.Maps", {"flatpak-user", "org.acme.Maps", "", megabyte}},
        {"org.acme.Chess", {"flatpak-system", "org.acme.Chess", "", 2 * megabyte}},
        {"paint", {"snap", "Paint", "4.5", 3 * megabyte}},
        {path("~/Downloads/Sketch-2.AppImage"), {"appimage", "Sketch-2", "", 4096}},
        {"acme-studio", {"local", "Studio", "", 4096}},
    };
    EXPECT_EQ(found, expected);
    EXPECT_EQ(app("acme-studio").url, path("~/.local/opt/studio"));
    EXPECT_EQ(app("acme-studio").iconFile,
              path("~/.local/share/icons/hicolor/128x128/apps/acme-studio.png"));
}

TEST_F(LinuxApps, KeepWhatBearsExactlyTheirNamesAndNoOthers) {
    for (const auto* each :
         {"~/.cache/editor/x", "~/.cache/editors/x", "~/.config/Editor/x", "~/.config/EDITOR/x",
          "~/.local/share/org.acme.editor/x", "~/.local/state/editor/x",
          "~/.var/app/org.acme.Maps/data/x", "~/.config/org.acme.Maps/x", "~/snap/paint/common/x"})
        machine.file(each);
    entry("~/.config/autostart/org.acme.editor.desktop", "Exec=editor\n");
    EXPECT_EQ(leftovers("editor"), (Names{".cache/editor*", ".config/Editor",
                                          ".config/autostart/org.acme.editor.desktop*",
                                          ".local/share/org.acme.editor", ".local/state/editor"}));
    EXPECT_EQ(leftovers("org.acme.Maps"),
              (Names{".config/org.acme.Maps", ".var/app/org.acme.Maps"}));
    EXPECT_EQ(leftovers("paint"), (Names{"snap/paint"}));
    EXPECT_EQ(leftovers("acme-studio"),
              (Names{".local/share/applications/acme-studio.desktop*",
                     ".local/share/icons/hicolor/128x128/apps/acme-studio.png*"}));

    // A second program of that name, and a second entry that shows the same icon.
    machine.tool("~/bin/editor", "");
    ownEntry("other", "Exec=" + path("~/bin/editor") + "\nIcon=acme-studio\n");
    flatpak("/var/lib/flatpak", "org.acme.Maps", megabyte);
    EXPECT_EQ(leftovers("editor"),
              (Names{".config/Editor", ".config/autostart/org.acme.editor.desktop*",
                     ".local/share/org.acme.editor"}));
    EXPECT_EQ(leftovers("org.acme.Maps"), Names{});
    EXPECT_EQ(leftovers("acme-studio"), (Names{".local/share/applications/acme-studio.desktop*"}));
}

TEST_F(LinuxApps, ClaimNothingByNamesThatAreEverybodysOrNone) {
    for (const auto* each : {"~/.config/systemd/x", "~/.local/share/applications/x",
                             "~/.config/google-chrome/Default/x", "~/.cache/rclone/vfs/x",
                             "~/.ssh/id", "~/.cache/ab/x", "~/.cache/python3/x"})
        machine.file(each);
    const auto claim = [this](const std::string& id, const std::string& word) {
        machine.tool("~/bin/tool-" + id, "");
        ownEntry(id, "Exec=" + path("~/bin/tool-" + id) + "\nStartupWMClass=" + word + "\n");
        return leftovers(id);
    };
    const auto own = [](const std::string& id) {
        return ".local/share/applications/" + id + ".desktop*";
    };
    for (const auto* word : {"systemd", "applications", "google-chrome", "../.ssh", "..", "ab",
                             "python3", "", ".", "a/b"})
        EXPECT_EQ(claim("claimer", word), (Names{own("claimer")})) << word;
    EXPECT_EQ(claim("cloud", "rclone"), (Names{".cache/rclone", own("cloud")}))
        << "what only looks like a cache goes only if the user says so";
}

TEST_F(LinuxApps, OfTheUserGoToTheTrashAndComeBack) {
    machine.file("~/.config/acme-studio/x");
    machine.file("~/.cache/acme-studio/x", megabyte);
    const auto plan = scanner().plan(app("acme-studio"));
    EXPECT_EQ(plan.itemCount(), 4);
    const auto result = scanner().uninstall(plan);
    EXPECT_TRUE(result.appBundleMoved);
    EXPECT_EQ(result.failed, Names{});
    EXPECT_EQ(result.freedBytes, plan.totalBytes());
    for (const auto* gone :
         {"~/.local/opt/studio", "~/.local/share/applications/acme-studio.desktop",
          "~/.cache/acme-studio"})
        EXPECT_FALSE(machine.has(gone)) << gone;
    EXPECT_TRUE(machine.has("~/.config/acme-studio/x")) << "nobody ticked the settings";
    EXPECT_TRUE(machine.has("~/.local/share/Trash/files/studio/bin/studio"));
    EXPECT_EQ(scanner().putBack(result).failed, Names{});
    EXPECT_TRUE(machine.has("~/.local/opt/studio/bin/studio"));
    EXPECT_TRUE(machine.has("~/.cache/acme-studio/x"));
}

TEST_F(LinuxApps, ThatRunStayWithAllTheirThings) {
    machine.file("~/.cache/Sketch/x");
    const auto image = app("Sketch-2");
    machine.remove("~/Downloads/Sketch-2.AppImage");
    const RunningProgram running(image.url);
    const auto result = scanner().uninstall({.app = image, .leftovers = {}});
    EXPECT_EQ(result.failed, Names{"Sketch-2 is still running. Quit it and try again"});
    EXPECT_TRUE(machine.has("~/Downloads/Sketch-2.AppImage"));
}

TEST_F(LinuxApps, OfFlatpakGoByItsToolAndTheirThingsOnlyAfterIt) {
    machine.file("~/.var/app/org.acme.Maps/data/x");
    auto plan = scanner().plan(app("org.acme.Maps"));
    for (auto& leftover : plan.leftovers) leftover.isSelected = true;
    machine.tool("/usr/bin/flatpak", "echo some words; exit 1\n");
    EXPECT_EQ(scanner().uninstall(plan).failed, Names{"org.acme.Maps"});
    EXPECT_TRUE(machine.has("~/.var/app/org.acme.Maps/data/x"));
    machine.tool("/usr/bin/flatpak", "printf '%s|' \"$@\" > \"$0.words\"\n");
    const auto result = scanner().uninstall(plan);
    EXPECT_TRUE(result.appBundleMoved);
    EXPECT_EQ(machine.contentOf("/usr/bin/flatpak.words"),
              "uninstall|--user|--noninteractive|org.acme.Maps|");
    EXPECT_TRUE(machine.has("~/.local/share/Trash/files/org.acme.Maps/data/x"));
}

TEST_F(LinuxApps, OfTheSystemAreOnlyToldHowToGo) {
    machine.file("~/.cache/editor/x");
    for (const auto* tool : {"/usr/bin/flatpak", "/usr/bin/snap", "/usr/bin/sudo"})
        machine.tool(tool, "echo ran >> \"$0.words\"\n");
    machine.tool("/usr/bin/apt-get",
                 "printf '%s|' \"$@\" > \"$0.words\"\n"
                 "echo 'Remv editor [1.2-3]'\necho 'Remv gnome-shell:amd64 [43] [x:amd64 ]'\n"
                 "echo 'Inst other (1)'\necho 'Remv ../../etc'\necho 'Remv $(reboot)'\n");
    const std::map<std::string, std::string> commands = {
        {"editor", "sudo apt-get remove editor"},
        {"org.acme.Chess", "flatpak uninstall --system org.acme.Chess"},
        {"paint", "sudo snap remove paint"},
    };
    for (const auto& [id, command] : commands) {
        const auto plan = scanner().plan(app(id));
        ASSERT_TRUE(plan.command) << id;
        EXPECT_EQ(plan.command->text, command);
        EXPECT_FALSE(scanner().uninstall(plan).appBundleMoved);
    }
    EXPECT_EQ(machine.contentOf("/usr/bin/apt-get.words"), "-s|-q|remove|editor|");
    for (const auto* tool : {"/usr/bin/flatpak", "/usr/bin/snap", "/usr/bin/sudo"})
        EXPECT_FALSE(machine.has(std::string(tool) + ".words")) << tool;
    EXPECT_TRUE(machine.has("/usr/share/applications/org.acme.editor.desktop"));
    EXPECT_TRUE(machine.has("/var/lib/snapd/snaps/paint_12.snap"));
    EXPECT_FALSE(machine.has("~/.cache/editor")) << "what it kept goes alone";

    const auto sheet = uninstallSheet(scanner().plan(app("editor")));
    EXPECT_EQ(sheet.command->note, "This also removes gnome-shell.");
    EXPECT_EQ(sheet.command->warning,
              "Don't: your desktop needs gnome-shell, and this would take it away.");
}

TEST_F(LinuxApps, LoseNothingThatIsNotTheirs) {
    const UninstallGuard guard(machine.host());
    for (const auto* file :
         {"~/.config/editor/x", "~/Documents/report.txt", "~/Downloads/letter.odt", "~/.ssh/id",
          "~/.config/rclone/x", "~/.local/share/Trash/files/old", "~/Code/app/main.cpp",
          "~/.local/share/flatpak/repo/x", "~/.local/share/applications/a.desktop"})
        machine.file(file);
    machine.tool("~/Documents/run", "");
    machine.tool("~/tools/run", "");
    machine.link("~/.cache/linked", path("~/Documents"));
    for (const auto* allowed :
         {"~/.config/editor", "~/Downloads/Sketch-2.AppImage", "~/.local/opt/studio", "~/tools/run",
          "~/.local/share/applications/a.desktop", "~/.cache/linked"})
        EXPECT_TRUE(guard.approve(path(allowed))) << allowed;
    for (const auto* refused : {"~",
                                "~/.config",
                                "~/.local/share",
                                "~/.local",
                                "~/.local/opt",
                                "~/.local/share/icons",
                                "~/.local/share/applications",
                                "~/Documents",
                                "~/Documents/report.txt",
                                "~/Documents/run",
                                "~/Downloads/letter.odt",
                                "~/.ssh/id",
                                "~/.config/rclone",
                                "~/.local/share/Trash",
                                "~/.local/share/Trash/files/old",
                                "~/Code/app",
                                "~/Code/app/main.cpp",
                                "~/tools",
                                "~/.local/share/flatpak/repo",
                                "~/.cache/linked/report.txt",
                                "/usr/bin/editor",
                                "/usr/share/applications/gone.desktop",
                                "~/.config/editor/../../.ssh"})
        EXPECT_FALSE(guard.approve(path(refused))) << refused;
}

TEST(DebianPackages, AreReadFromWhateverStandsThere) {
    const std::string binary("\0\xff\x1b[31mPackage: x\n", 16);
    const auto packages = parsePackages(
        binary +
        "\n\nPackage: $(reboot)\nStatus: install ok installed\n\n"
        "Status: install ok installed\n\n\n\nPackage: -rf\nStatus: install ok installed\n\n"
        "Package: huge\nStatus: install ok installed\nInstalled-Size: 99999999999999999999\n\n"
        "Package: negative\nStatus: install ok installed\nInstalled-Size: -5\n\n"
        "Package: last\nStatus: hold ok installed\nInstalled-Size: 1");
    std::map<std::string, ByteCount> sizes;
    for (const auto& [name, package] : packages) sizes[name] = package.sizeBytes;
    EXPECT_EQ(sizes,
              (std::map<std::string, ByteCount>{{"huge", 0}, {"last", 1024}, {"negative", 0}}));
}

}  // namespace
}  // namespace tidewell::test
