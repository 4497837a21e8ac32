#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

#include "cleanup/disk_scanner.h"
#include "cleanup/target_catalogue.h"
#include "platform/path_text.h"
#include "support/running_program.h"
#include "support/sample_machine.h"

namespace tidewell {

namespace {

using test::SampleMachine;

constexpr std::string_view tag = "Signature: 8a477f597d28d172789f06886806bc55\n";

struct LinuxSweep : ::testing::Test {
    std::optional<CleanupItem> measure(std::string_view id) const {
        const auto targets = cleanupCatalogue(machine.host());
        return DiskScanner(machine.host())
            .measure(*std::ranges::find(targets, id, &CleanupTarget::id));
    }
    /// What the row takes, below the home folder.
    std::vector<std::string> taken(std::string_view id) const {
        std::vector<std::string> paths;
        if (const auto item = measure(id))
            for (const auto& path : item->resolvedPaths)
                paths.emplace_back(machine.host().relativeToHome(path));
        return paths;
    }
    void tagged(std::string_view folder) const {
        machine.text(std::string(folder) + "/CACHEDIR.TAG", tag);
        machine.file(std::string(folder) + "/content");
    }

    const SampleMachine machine{System::linux};
};

}  // namespace

/// One line for each kind of data that people lose when "the cache" is emptied.
TEST_F(LinuxSweep, LeavesWhatOnlyLooksLikeACache) {
    const char* kept[] = {"rclone/vfs/upload.doc",
                          "keepassxc/state",
                          "evolution/mail",
                          "ibus/words",
                          "obexd/x",
                          "doc/x",
                          "kwin/x",
                          "plasma_theme_x/a",
                          "ksycoca6_en_a",
                          "borg/keys",
                          "restic/x",
                          "cliphist/db",
                          "sessions/x",
                          "dconf/user",
                          "gvfs-metadata/x",
                          "flatpak/x",
                          "pypoetry/virtualenvs",
                          "JetBrains/Idea2026.1/LocalHistory/x",
                          "spotify/Storage/song",
                          "virtualenv/x",
                          "huggingface/hub/x",
                          "torch/hub/x",
                          "lm-studio/x",
                          "whisper/large.pt",
                          "work/pyvenv.cfg",
                          "tools/a/pyvenv.cfg",
                          "envs/a/b/pyvenv.cfg"};
    for (const auto* entry : kept) {
        machine.file(std::string("~/.cache/") + entry);
        // A mark does not make it less precious.
        const auto folder = std::string(pathPieces(entry).front());
        if (folder != "ksycoca6_en_a") machine.text("~/.cache/" + folder + "/CACHEDIR.TAG", tag);
    }
    machine.file("~/.var/app/org.example.App/cache/tmp/x");
    for (const auto* row : {"tagged-caches", "other-app-caches", "flatpak-app-caches"})
        EXPECT_EQ(taken(row), std::vector<std::string>{}) << row;

    machine.file("~/.cache/rclone-browser/x");
    machine.file("~/.cache/deep/a/b/c/pyvenv.cfg");
    EXPECT_EQ(taken("other-app-caches"),
              (std::vector<std::string>{".cache/deep", ".cache/rclone-browser"}));
    EXPECT_FALSE(measure("other-app-caches")->isSelected);
}

TEST_F(LinuxSweep, BelievesATagOnlyWhereItIsAPlainNoteOfTheFolderItself) {
    tagged("~/.cache/marked");
    tagged("~/.cache/pip");  // has a row of its own
    machine.file("~/.cache/unmarked/a");
    machine.text("~/.cache/other-words/CACHEDIR.TAG", "Signature: none");
    machine.text("~/.cache/deeper/x/CACHEDIR.TAG", tag);
    machine.file("~/.cache/linked/a");
    machine.link("~/.cache/linked/CACHEDIR.TAG", machine.path("~/.cache/marked/CACHEDIR.TAG"));
    machine.file("~/.cache/waiting/a");
    ASSERT_EQ(::mkfifo(machine.path("~/.cache/waiting/CACHEDIR.TAG").c_str(), 0600), 0);
    machine.text("~/.cache/huge/CACHEDIR.TAG", std::string(tag) + std::string(5000, 'x'));
    machine.file("~/Documents/tagged/a");
    tagged("~/Documents/tagged");
    machine.link("~/.cache/lead", machine.path("~/Documents/tagged"));

    EXPECT_EQ(taken("tagged-caches"), std::vector<std::string>{".cache/marked"});
    EXPECT_TRUE(measure("tagged-caches")->isSelected);
    EXPECT_EQ(
        taken("other-app-caches"),
        (std::vector<std::string>{".cache/deeper", ".cache/huge", ".cache/linked",
                                  ".cache/other-words", ".cache/unmarked", ".cache/waiting"}));
}

TEST_F(LinuxSweep, TakesOfFlatpakApplicationsWhatNoOtherRowHas) {
    machine.file("~/.var/app/org.example.App/cache/pictures/a");
    machine.file("~/.var/app/org.mozilla.firefox/cache/mozilla/firefox/a");
    machine.file("~/.var/app/org.mozilla.firefox/cache/fontconfig/a");
    machine.link("~/.var/app/org.example.Link", machine.path("~/Documents"));
    machine.file("~/Documents/cache/thesis/a");
    EXPECT_EQ(taken("flatpak-app-caches"),
              (std::vector<std::string>{".var/app/org.example.App/cache/pictures",
                                        ".var/app/org.mozilla.firefox/cache/fontconfig"}));
    EXPECT_FALSE(measure("flatpak-app-caches")->isSelected);
}

TEST_F(LinuxSweep, LeavesWhatAProgramHasOpenAndWhatIsMountedThere) {
    machine.file("~/.cache/still/x");
    machine.file("~/.cache/writing/deep/x");
    const auto before = measure("other-app-caches");
    ASSERT_EQ(before->resolvedPaths.size(), 2U);
    // The program inherits what is open.
    const int file = ::open(machine.path("~/.cache/writing/deep/x").c_str(), O_RDONLY);
    const test::RunningProgram writer(machine.path("/usr/bin/writer"));
    ::close(file);
    EXPECT_EQ(taken("other-app-caches"), std::vector<std::string>{".cache/still"});
    EXPECT_EQ(DiskScanner(machine.host()).clean(*before).failedTitle, before->target.title);
    EXPECT_TRUE(machine.has("~/.cache/writing/deep/x"));
    EXPECT_FALSE(machine.has("~/.cache/still/x"));

    machine.file("~/.cache/mounted/x");
    const auto place = machine.path("~/.cache/mounted");
    if (::mount("none", place.c_str(), "tmpfs", 0, nullptr) != 0) GTEST_SKIP() << "no mounts here";
    machine.file("~/.cache/mounted/x");
    EXPECT_EQ(taken("other-app-caches"), std::vector<std::string>{});
    ::umount(place.c_str());
    EXPECT_EQ(taken("other-app-caches"), std::vector<std::string>{".cache/mounted"});
}

TEST_F(LinuxSweep, FollowsNoLinkThatAPatternMeets) {
    machine.file("~/.config/google-chrome/Profile \xff/Cache/a");
    machine.file("~/Documents/Cache/a");
    machine.link("~/.config/google-chrome/Profile 2", machine.path("~/Documents"));
    machine.link("~/.cache/mesa_shader_cache_db", machine.path("~/Documents"));
    machine.text("~/.config/google-chrome/First Run", "");
    machine.file("~/.xsession-errors.old");
    machine.link("~/.xsession-errors", machine.path("~/Documents/Cache/a"));
    EXPECT_EQ(taken("chrome-cache"),
              std::vector<std::string>{".config/google-chrome/Profile \xff/Cache"});
    EXPECT_EQ(taken("shader-caches"), std::vector<std::string>{});
    EXPECT_EQ(taken("user-logs"), std::vector<std::string>{".xsession-errors.old"});
}

TEST_F(LinuxSweep, CountsOnceWhatSeveralPathsLeadTo) {
    machine.file("~/.var/app/com.valvesoftware.Steam/data/Steam/logs/a");
    machine.link("~/.var/app/com.valvesoftware.Steam/.local/share", "../data");
    EXPECT_EQ(measure("steam-caches")->sizeBytes, 4096);
}

/// A star is a letter in a name of the user's own, as in a project that was found on the disk.
TEST_F(LinuxSweep, TakesAStarInAFoundPathForALetter) {
    machine.file("~/Code/app*/node_modules/a");
    machine.file("~/Code/apples/node_modules/a");
    const auto path = machine.path("~/Code/app*/node_modules");
    EXPECT_EQ(existingPlaces({path}, machine.host()), std::vector{path});
}

TEST_F(LinuxSweep, ReadsThousandsOfProfilesInOneListing) {
    for (int profile = 0; profile < 3000; ++profile)
        machine.folder("~/.config/google-chrome/Profile " + std::to_string(profile));
    machine.file("~/.config/google-chrome/Profile 2999/GPUCache/a");
    EXPECT_EQ(taken("chrome-cache"),
              std::vector<std::string>{".config/google-chrome/Profile 2999/GPUCache"});
}

}  // namespace tidewell
