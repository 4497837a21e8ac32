#include "deepscan/big_item_scanner.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "deepscan/container_scanner.h"
#include "deepscan/deep_scan_view_model.h"
#include "deepscan/screens/deep_scan_content.h"
#include "support/sample_machine.h"

namespace tidewell::test {
namespace {

using Kind = BigItem::Kind;
using Verdict = FolderKnowledge::Verdict;

TEST(BigItemScanner, ClassifiesByNameThenPlaceAndLetsAClearFactOverruleIt) {
    const std::pair<std::string_view, Kind> rows[] = {
        {"/h/Downloads/node_modules", Kind::rebuildable},
        {"/h/Library/Caches/build", Kind::rebuildable},
        {"/h/Library/Caches 2", Kind::cache},
        {"/h/Documents/Caches", Kind::cache},
        {"/h/Library/caches/x", Kind::appData},
        {"/h/Documents/Target", Kind::personal},
        {"/h/Music/MyCache", Kind::personal},
        {"/h/Library2/x", Kind::other},
        {"/h/documents/x", Kind::other},
        {"/h/Projects/Documents", Kind::other},
        {"/h2/Documents/x", Kind::other},
    };
    Host host;
    host.home = "/h";
    const auto kept = keptEntries(host);
    for (const auto& [path, kind] : rows)
        EXPECT_EQ(classifyBigItem(path, host, kept), kind) << path;

    const auto with = [](Verdict verdict) {
        return finalKind(Kind::appData, FolderKnowledge::Fact{verdict, ""});
    };
    EXPECT_EQ(with(Verdict::keepUserData), Kind::personal);
    EXPECT_EQ(with(Verdict::safeToClear), Kind::cache);
    EXPECT_EQ(with(Verdict::mixed), Kind::appData);
    EXPECT_EQ(with(Verdict::systemRecreated), Kind::appData);
}

TEST(BigItemScanner, ListsTheBigEntriesOfFiveLibraryFoldersAndOfVisibleFoldersAsWholes) {
    EXPECT_TRUE(isBigItem(83'886'080));
    EXPECT_FALSE(isBigItem(83'886'079));
    const SampleMachine machine;
    machine.file("~/Library/Caches/Google/a/b/blob", 100 * megabyte);
    machine.file("~/Library/Containers/com.apple.mail/box", 90 * megabyte);
    machine.file("~/Downloads/.big", 95 * megabyte);
    machine.file("~/Downloads/small", 79 * megabyte);
    machine.file("~/Work/film.mov", 90 * megabyte);
    machine.file("~/.hidden/deep/blob", 90 * megabyte);
    machine.file("~/Applications/Game.app/data", 90 * megabyte);
    machine.file("~/Library/Mail/box", 90 * megabyte);
    machine.file("~/film.mov", 90 * megabyte);
    machine.link("~/Downloads/dangling", "nowhere");
    machine.link("~/Movies/lnk", machine.path("~/.hidden"));
    machine.link("~/Pictures", ".hidden");
    std::vector<double> progress;

    const auto items = BigItemScanner(machine.host()).scan([&progress](double fraction) {
        progress.push_back(fraction);
    });

    std::vector<std::string> lines;
    for (const auto& item : items)
        lines.push_back(item.location + "|" + item.name + (item.isDirectory ? "|folder" : "|file") +
                        (item.note ? "|known" : "") + "|" +
                        std::to_string(item.sizeBytes / megabyte));
    EXPECT_EQ(lines, (std::vector<std::string>{
                         "Library/Caches|Google|folder|known|100",
                         "Downloads|.big|file|95",
                         "Library/Containers|com.apple.mail|folder|known|90",
                         "Work|film.mov|file|90",
                     }));
    EXPECT_EQ(items[0].kind, Kind::cache);
    EXPECT_EQ(items[2].kind, Kind::personal) << "a fact overrules its place";
    EXPECT_EQ(items[3].id, machine.path("~/Work/film.mov"));
    EXPECT_EQ(progress, (std::vector{1 / 6., 2 / 6., 3 / 6., 4 / 6., 5 / 6., 1.}));
}

TEST(BigItemScanner, OfALinuxHomeTellsWhatAnItemFreesWhereFilesHaveSeveralNames) {
    const SampleMachine machine(System::linux);
    machine.file("~/Videos/film/one", 90 * megabyte);
    machine.file("~/Videos/film/two", 30 * megabyte);
    machine.folder("~/backup");
    for (const auto& [from, to] : {std::pair{"~/Videos/film/one", "~/Videos/film/again"},
                                   {"~/Videos/film/two", "~/backup/two"}})
        std::filesystem::create_hard_link(machine.path(from), machine.path(to));
    const auto items = BigItemScanner(machine.host()).scan();
    ASSERT_EQ(items.size(), 1);
    EXPECT_EQ(items[0].sizeBytes, 90 * megabyte);
    EXPECT_TRUE(bigItemCard(items[0], {}, System::linux)
                    .note.ends_with(" 31.5 MB more is shared with other files and would stay."));
}

TEST(BigItemScanner, ListsALinuxHomeOnceAndSaysWhatEachThingIs) {
    const SampleMachine machine(System::linux);
    const std::pair<const char*, Kind> found[] = {
        {"~/.cache/pip", Kind::cache},
        {"~/.cache/someone", Kind::appData},
        {"~/.config/Code", Kind::appData},
        {"~/.local/bin", Kind::appData},
        {"~/.local/share/Steam/ubuntu12_32", Kind::appData},
        {"~/.local/share/Steam/steamapps/common/Game", Kind::appData},
        {"~/.local/share/Steam/steamapps/compatdata/440", Kind::personal},
        {"~/.local/share/flatpak/runtime", Kind::appData},
        {"~/.local/share/flatpak/app/org.example.App", Kind::appData},
        {"~/.local/share/containers/cache", Kind::appData},
        {"~/.var/app/org.example.App", Kind::appData},
        {"~/.wine", Kind::personal},
        {"~/.old", Kind::appData},
        {"~/Code/app", Kind::other},
        {"~/Code/target", Kind::rebuildable},
        {"~/Videos/film", Kind::personal},
        {"~/snap/app", Kind::appData},
    };
    for (const auto& [place, kind] : found)
        machine.file(std::string(place) + "/a/blob", 81 * megabyte);
    machine.file("~/disk.img", 90 * megabyte);
    machine.file("~/.swap", 90 * megabyte);
    machine.file("~/.local/share/containers/storage/overlay/blob", 101 * megabyte);
    machine.link("~/linked.img", machine.path("~/disk.img"));

    const auto items = mergeDeepScan(BigItemScanner(machine.host()).scan(), {}, {},
                                     ContainerScanner(machine.host()).walkExclusionPaths());

    std::map<std::string, Kind> kinds;
    for (const auto& item : items) kinds[item.id] = item.kind;
    for (const auto& [place, kind] : found) {
        ASSERT_TRUE(kinds.contains(machine.path(place))) << place;
        EXPECT_EQ(kinds[machine.path(place)], kind) << place;
    }
    EXPECT_EQ(kinds[machine.path("~/disk.img")], Kind::personal);
    EXPECT_EQ(kinds[machine.path("~/.swap")], Kind::personal);
    EXPECT_EQ(items.size(), std::size(found) + 2);
}

}  // namespace
}  // namespace tidewell::test
