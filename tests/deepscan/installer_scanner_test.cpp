#include "deepscan/installer_scanner.h"

#include <gtest/gtest.h>

#include "deepscan/big_item_support.h"
#include "support/sample_machine.h"

namespace tidewell::test {
namespace {

using namespace std::chrono_literals;

TEST(InstallerScanner, SaysWhatAnInstallerIsAndSinceWhen) {
    const std::pair<std::int64_t, std::string_view> ages[] = {
        {-400, "today"},     {0, "today"},         {1, "1 day ago"},     {29, "29 days ago"},
        {30, "1 month ago"}, {59, "1 month ago"},  {60, "2 months ago"}, {359, "11 months ago"},
        {360, "1 year ago"}, {720, "2 years ago"},
    };
    for (const auto& [days, text] : ages) EXPECT_EQ(installerAge(days), text) << days;

    const Date now = std::chrono::sys_days(std::chrono::year(2026) / 6 / 20) + 12h;
    EXPECT_EQ(installerNote("dmg", now - 72h, now),
              "Disk image. Added 3 days ago. Safe to trash once you've installed the app.");
    EXPECT_EQ(installerNote("iso", now + 48h, now),
              "Disc image. Added today. Safe to trash once you've installed the app.");
    EXPECT_EQ(installerNote("pkg", std::nullopt, now),
              "Installer package. Safe to trash once you've installed the app.");
}

TEST(InstallerScanner, FindsInstallersInDownloadsAndOnTheDesktopLargestFirst) {
    const SampleMachine machine;
    machine.file("~/Desktop/Old Tools/Setup.PKG", 5 * megabyte);
    machine.age("~/Desktop/Old Tools/Setup.PKG", 40);
    machine.file("~/Downloads/bundle.mpkg/Contents/inner.dmg", 6 * megabyte);
    machine.file("~/Downloads/folder.dmg/inside.iso", 7 * megabyte);
    machine.file("~/Downloads/1/2/3/4/5/level6.dmg", 8 * megabyte);
    machine.file("~/Downloads/1/2/3/4/5/6/level7.dmg", 8 * megabyte);
    machine.file("~/Downloads/small.dmg", 5 * megabyte - 8192);
    machine.file("~/Downloads/.hidden/x.dmg", 9 * megabyte);
    machine.file("~/Downloads/.hidden.dmg", 9 * megabyte);
    machine.file("~/Downloads/Some.app/Contents/x.dmg", 9 * megabyte);
    machine.file("~/Downloads/film.mov", 9 * megabyte);
    machine.file("~/Documents/x.dmg", 9 * megabyte);
    machine.link("~/Downloads/link.dmg", machine.path("~/Documents/x.dmg"));

    const auto items = InstallerScanner(machine.host()).scan();

    std::vector<std::string> expected;
    for (const auto path : {"~/Downloads/1/2/3/4/5/level6.dmg", "~/Downloads/folder.dmg",
                            "~/Downloads/folder.dmg/inside.iso", "~/Downloads/bundle.mpkg",
                            "~/Desktop/Old Tools/Setup.PKG"})
        expected.push_back(machine.path(path));
    EXPECT_EQ(idsOf(items), expected);
    for (const auto& item : items) EXPECT_EQ(item.isDirectory, item.name == "bundle.mpkg");
    const auto& package = items.back();
    EXPECT_EQ(package.kind, BigItem::Kind::installer);
    EXPECT_EQ(package.name, "Setup.PKG");
    EXPECT_EQ(package.location, "Desktop/Old Tools");
    EXPECT_EQ(package.note,
              "Installer package. Added 1 month ago. Safe to trash once you've installed the app.");
}

}  // namespace
}  // namespace tidewell::test
