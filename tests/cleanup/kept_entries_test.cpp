#include "cleanup/kept_entries.h"

#include <gtest/gtest.h>

#include "cleanup/deletion_guard.h"
#include "cleanup/kept_places.h"
#include "cleanup/project_artifacts.h"
#include "cleanup/user_dirs.h"
#include "deepscan/big_item_scanner.h"
#include "support/sample_machine.h"

namespace tidewell {
namespace {

using test::SampleMachine;

Host linuxHost(const SampleMachine& machine) {
    auto host = machine.host();
    host.system = System::linux;
    host.baseFolders = {.cache = machine.path("~/.cache"),
                        .config = machine.path("~/settings"),
                        .data = machine.path("~/.local/share"),
                        .state = machine.path("~/.local/state")};
    return host;
}

TEST(UserDirs, TakesWhatNamesAFolderAndPassesOverTheRest) {
    const SampleMachine machine;
    const auto host = linuxHost(machine);
    using namespace std::string_view_literals;
    const auto dirs = parseUserDirs(
        "# comment\n"
        "XDG_DOCUMENTS_DIR=\"$HOME/Dokumente\"\n"
        " XDG_MUSIC_DIR = \"$HOME/\xe9\x9f\xb3 \\\"a\\\"\" \r\n"
        "XDG_VIDEOS_DIR=\"/media/films/\"\n"
        "XDG_PICTURES_DIR=\"$HOME/a/../data/in\"\n"
        "XDG_DESKTOP_DIR=\"$HOME/\"\n"
        "XDG_PUBLICSHARE_DIR=\"$HOME\"\n"
        "XDG_TEMPLATES_DIR=\"/\"\n"
        "XDG_DOWNLOAD_DIR=\"$HOME/..\"\n"
        "XDG_DOWNLOAD_DIR=\"Downloads\"\n"
        "XDG_DOWNLOAD_DIR=\"$HOMEx/y\"\n"
        "XDG_DOWNLOAD_DIR=$HOME/y\nXDG__DIR=\"/x\"\nXDG_DIR=\"/x\"\n"
        "XDG_DOWNLOAD_DIR=\"$HOME/a\0b\"\n\xff\xfe\0\n"
        "XDG_DOWNLOAD_DIR=\"$HOME/open"sv,
        host);
    std::vector<std::string> paths;
    for (const auto& dir : dirs) paths.push_back(dir.kind + " " + dir.path);
    EXPECT_EQ(paths, (std::vector<std::string>{
                         "DOCUMENTS " + machine.path("~/Dokumente"),
                         "MUSIC " + machine.path("~/\xe9\x9f\xb3 \"a\""),
                         "VIDEOS " + machine.path("/media/films"),
                         "PICTURES " + machine.path("~/data/in"),
                     }));
    EXPECT_TRUE(userDirs(host).empty()) << "no file";
    machine.text("~/settings/user-dirs.dirs", "XDG_DOCUMENTS_DIR=\"$HOME/Texte\"\n");
    machine.text("~/elsewhere", "XDG_MUSIC_DIR=\"$HOME/Klang\"\n");
    machine.link("~/.config/user-dirs.dirs", "../elsewhere");
    EXPECT_EQ(userDirs(host).size(), 2u);
    machine.text("~/elsewhere", "XDG_MUSIC_DIR=\"$HOME/Klang\"\n" + std::string(1 << 20, '#'));
    EXPECT_EQ(userDirs(host).size(), 1u) << "no desktop wrote that";
    EXPECT_TRUE(userDirs(machine.host()).empty()) << "not on such a machine";
}

TEST(KeptEntries, OfLinuxMachinesCloseWhatIsTheUsersAndWhatNobodyCanMakeAnew) {
    const SampleMachine machine;
    machine.text("~/settings/user-dirs.dirs",
                 "XDG_DOCUMENTS_DIR=\"$HOME/Dokumente\"\nXDG_DOWNLOAD_DIR=\"$HOME/data/in\"\n");
    const DeletionGuard guard(linuxHost(machine));
    struct Row {
        DeletionRule rule;
        std::vector<const char*> paths;
    };
    for (const auto& [rule, paths] :
         {Row{DeletionRule::personalFolder,
              {"~/Dokumente/x", "~/Documents/x", "~/Videos/film", "~/Templates", "~/Sites/x",
               "~/data/in/x"}},
          Row{DeletionRule::protectedPath,
              {"~/.ssh/id", "~/.config/gh/hosts.yml", "~/settings/gh", "~/settings/rclone/x",
               "~/.mozilla/firefox/a/logins.json", "~/.config/google-chrome-beta/Default/Cache",
               "~/settings/chromium/Default", "~/snap/firefox/common/.mozilla/x",
               "~/.var/app/org.mozilla.firefox/.mozilla", "~/.local/share/keyrings/x",
               "~/.var/app/com.google.Chrome/config/google-chrome/Default", "~/.cache/keepassxc"}},
          Row{DeletionRule::neverSwept,
              {"~/.cache/rclone", "~/.cache/rclone/vfs/x", "~/.cache/plasma_theme",
               "~/.cache/gvfsd", "~/.cache/pypoetry/virtualenvs", "~/snap/x/common/.cache/borg",
               "~/.var/app/x/cache/restic"}},
          Row{DeletionRule::openFolder,
              {"~/data/other", "~/.cache/pip", "~/.cache/rclone2", "~/.mozilla2",
               "~/.cache/spotify", "~/.config/googlechrome", "~/snap/.mozilla",
               "~/.var/app/x/cache/y"}}})
        for (const auto* path : paths) EXPECT_EQ(guard.verdict(machine.path(path)), rule) << path;
    EXPECT_EQ(DeletionGuard(machine.host()).verdict(machine.path("~/.cache/rclone")),
              DeletionRule::openFolder)
        << "on another system";
}

TEST(KeptEntries, LetGoOfAProfileOnlyTheCachesThatARowNames) {
    const SampleMachine machine;
    const auto host = linuxHost(machine);
    auto kept = keptEntries(host);
    kept.namedByRows = namedInside(
        kept, {machine.path("~/.config/chromium/*/Cache"), machine.path("~/.config/chromium"),
               machine.path("~/.mozilla"), machine.path("~/.config"), machine.path("~/.ssh/cache"),
               machine.path("~/.cache/pypoetry/artifacts"), machine.path("~/.cache/pypoetry"),
               machine.path("~/.var/app/org.x/config/chromium/*/Cache")});
    EXPECT_EQ(kept.namedByRows.size(), 3u);
    const auto rule = [&](const char* path) {
        return deletionRule(machine.path(path), host.home, {}, kept);
    };
    for (const auto* path : {"~/.config/chromium/Default/Cache", "~/.config/chromium/P 1/Cache/f_1",
                             "~/.var/app/org.x/config/chromium/Default/Cache"})
        EXPECT_EQ(rule(path), DeletionRule::namedCache) << path;
    for (const auto* path :
         {"~/.config/chromium", "~/.config/chromium/Default", "~/.config/chromium/Default/Cache2",
          "~/.config/chromium/Default/Login Data", "~/.config/chromium/Cache",
          "~/.config/chromium/Default/x/Cache", "~/.mozilla/x", "~/.ssh/cache",
          "~/.config/chromium/Default/Cache/../Login Data"})
        EXPECT_EQ(rule(path), DeletionRule::protectedPath) << path;
    EXPECT_EQ(rule("~/.cache/pypoetry/artifacts/x"), DeletionRule::openFolder);
    EXPECT_EQ(rule("~/.cache/pypoetry/virtualenvs"), DeletionRule::neverSwept);
}

TEST(KeptEntries, OfLinuxMachinesTakeForBuildOutputOnlyWhatLiesBesideAMarker) {
    const SampleMachine machine;
    machine.text("~/Videos/app/package.json", "{}");
    for (const auto* file : {"~/Videos/app/node_modules/pad/x", "~/Videos/mine/venv/x",
                             "~/Videos/mine/node_modules/foo/build/x", "~/work/venv/x"})
        machine.text(file, "x");
    machine.text("~/Videos/mine/node_modules/foo/package.json", "{}");
    machine.text("~/Videos/venv/x", "x");
    const auto host = linuxHost(machine);
    const DeletionGuard guard(host);
    EXPECT_TRUE(guard.approve(machine.path("~/Videos/app/node_modules/pad")));
    for (const auto* path : {"~/Videos/mine/venv/x", "~/Videos/mine/node_modules/foo/build/x"})
        EXPECT_EQ(guard.verdict(machine.path(path)), DeletionRule::personalFolder) << path;
    const KeptPlaces kept(host);
    EXPECT_EQ(classifyPlace(machine.path("~/Videos/venv"), host, kept), BigItem::Kind::personal);
    EXPECT_EQ(classifyPlace(machine.path("~/work/venv"), host, kept), BigItem::Kind::rebuildable);
    std::vector<std::string> found;
    for (const auto& target : findProjectArtifacts(host)) found.push_back(target.paths.front());
    EXPECT_EQ(found, (std::vector<std::string>{machine.path("~/Videos/app/node_modules"),
                                               machine.path("~/work/venv")}));
}

}  // namespace
}  // namespace tidewell
