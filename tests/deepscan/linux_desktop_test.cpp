#include "support/linux_desktop.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "cleanup/disk_scanner.h"
#include "cleanup/project_artifacts.h"
#include "cleanup/target_catalogue.h"
#include "deepscan/container_scanner.h"
#include "deepscan/deep_scan_view_model.h"
#include "devmode/ai_model_scanner.h"
#include "devmode/dev_targets.h"
#include "platform/path_text.h"

namespace tidewell::test {
namespace {

using Paths = std::vector<std::string>;

void addItems(Paths& paths, const std::vector<CleanupTarget>& targets, const Host& host) {
    for (const auto& target : targets)
        if (const auto item = DiskScanner(host).measure(target))
            paths.insert(paths.end(), item->resolvedPaths.begin(), item->resolvedPaths.end());
}

Paths shownByClean(const Host& host) {
    Paths paths;
    addItems(paths, cleanupCatalogue(host), host);
    addItems(paths, findProjectArtifacts(host), host);
    return paths;
}

Paths shownByDevMode(const Host& host) {
    Paths paths;
    addItems(paths, devTargets(host), host);
    addItems(paths, findProjectArtifacts(host), host);
    for (const auto& store : AIModelScanner(host).scan()) paths.push_back(store.path());
    return paths;
}

Paths shownByDeepScan(const Host& host) {
    const ContainerScanner containers(host);
    auto walked = BigItemScanner(host).scan();
    auto installers = InstallerScanner(host).scan(walked);
    Paths paths;
    for (const auto& item : mergeDeepScan(std::move(walked), std::move(installers),
                                          containers.scan(), containers.walkExclusionPaths()))
        paths.push_back(item.path());
    return paths;
}

/// The paths that lie in no other one.
Paths outermost(Paths paths) {
    std::ranges::sort(paths);
    Paths outer;
    const std::set<std::string, std::less<>> all(paths.begin(), paths.end());
    for (const auto& path : all) {
        bool liesInOne = false;
        for (auto above = parentPath(path); above.size() > 1; above = parentPath(above))
            liesInOne = liesInOne || all.contains(above);
        if (!liesInOne) outer.push_back(path);
    }
    return outer;
}

}  // namespace

/// Of all that takes room in the home folder, hardly anything is left that no tool tells of, and
/// none tells of anything twice.
TEST(LinuxDesktop, IsShownAsGoodAsWholeAndByNoToolTwice) {
    const SampleMachine machine(System::linux);
    furnishLinuxDesktop(machine);
    const auto& host = machine.host();
    Paths all;
    for (const auto& shown : {shownByClean(host), shownByDevMode(host), shownByDeepScan(host)}) {
        EXPECT_EQ(outermost(shown).size(), shown.size());
        all.insert(all.end(), shown.begin(), shown.end());
    }
    ByteCount seen = 0;
    for (const auto& path : outermost(all)) seen += allocatedSize(path);
    const auto whole = allocatedSize(machine.home());
    EXPECT_GE(static_cast<double>(seen), 0.95 * static_cast<double>(whole))
        << seen << " of " << whole;
}

/// What is ticked by itself is neither the user's own nor what nothing makes again.
TEST(LinuxDesktop, HasNothingTickedThatIsNotMadeAgain) {
    const SampleMachine machine(System::linux);
    furnishLinuxDesktop(machine);
    const DiskScanner scanner(machine.host());
    auto targets = cleanupCatalogue(machine.host());
    std::ranges::move(findProjectArtifacts(machine.host()), std::back_inserter(targets));
    for (const auto& target : targets)
        if (const auto item = scanner.measure(target); item && item->isSelected) {
            EXPECT_FALSE(scanner.clean(*item).failedTitle) << target.id;
        }
    for (const auto* kept :
         {"~/.cache/rclone/vfs/remote/still to upload.doc", "~/.cache/some-tool/index",
          "~/.cache/pypoetry/virtualenvs/app-py3.12/lib/one", "~/.cache/spotify/Storage/download",
          "~/.cache/JetBrains/IdeaIC2026.1/LocalHistory/changes.storage",
          "~/.cache/huggingface/token", "~/.cache/huggingface/hub/models--tiny/blob",
          "~/.config/google-chrome/Default/History",
          "~/.mozilla/firefox/ab12.default/places.sqlite",
          "~/.config/google-chrome/Profile 1/Service Worker/CacheStorage/one",
          "~/.var/app/org.example.Maps/cache/tiles/one", "~/.m2/repository/org/example/1.0/one.jar",
          "~/.local/share/Trash/files/old film.mkv", "~/Documents/x/venv/notes.txt",
          "~/Documents/Thesis/thesis.tex", "~/.config/Signal/attachments.noindex/00/one",
          "~/.local/share/Steam/steamapps/common/Tides/tides.pak", "~/Pictures/2026/one.raw"})
        EXPECT_TRUE(machine.has(kept)) << kept;
    for (const auto* gone :
         {"~/.npm/_cacache/content-v2", "~/.cache/pip/http-v2", "~/.cache/marked-tool/objects",
          "~/.config/google-chrome/Default/Code Cache/js",
          "~/snap/chromium/common/.cache/chromium/Default", "~/Code/webapp/node_modules/left-pad"})
        EXPECT_FALSE(machine.has(gone)) << gone;
}

}  // namespace tidewell::test
