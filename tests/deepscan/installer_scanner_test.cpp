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
    const auto note = [&now](const std::string& name, std::optional<Date> added) {
        return installerNote(*installerType(name, System::macOS), added, now);
    };
    EXPECT_EQ(note("x.dmg", now - 72h),
              "Disk image. Added 3 days ago. Safe to trash once you've installed the app.");
    EXPECT_EQ(note("x.iso", now + 48h),
              "Disc image. Added today. Safe to trash once you've installed the app.");
    EXPECT_EQ(note("x.pkg", std::nullopt),
              "Installer package. Safe to trash once you've installed the app.");
}

TEST(InstallerScanner, GoesByTheFirstBytesWhereALinuxNameSaysLittle) {
    const SampleMachine machine(System::linux);
    const std::string iso(32769, '\0');
    const struct {
        std::string name;
        std::string start;
        std::string label;  ///< empty for what is no installer
    } rows[] = {
        {"a.DEB", "", "Installer package"},
        {"b.run", "#!/bin/sh\n# This script was generated using Makeself 2.4.0\n",
         "Self-extracting installer"},
        {"c.run", "#!/bin/sh\nexec ./simulate\n", ""},
        {"d.exe", "MZ" + std::string(500, 'x') + ".ndata", "Windows installer"},
        {"e.exe", "MZ the game itself", ""},
        {"f.img", iso + "CD001", "Disk image"},
        {"g.img", "a scan of a photograph", ""},
        {"h",
         std::string("\x7F"
                     "ELF\2\1\1\0AI\2",
                     11),
         "AppImage"},
        {"i",
         std::string("\x7F"
                     "ELF\2\1\1\0\0\0\0",
                     11),
         ""},
        {"j.AppImage", "", "AppImage"},
        {"k.dmg", "", ""},
    };
    for (const auto& row : rows) {
        const auto place = "~/Downloads/" + row.name;
        machine.text(place, row.start);
        const auto* type = installerType(machine.path(place), System::linux);
        EXPECT_EQ(type ? type->label : "", row.label) << row.name;
        const bool isCalledSafe =
            type && type->advice.starts_with("Safe to trash once you've inst");
        EXPECT_FALSE(isCalledSafe && row.label == "AppImage") << row.name;
    }
    machine.folder("~/Downloads/unpacked.snap");
    machine.link("~/Downloads/linked.deb", machine.path("~/Downloads/a.DEB"));
    for (const auto* place : {"~/Downloads/unpacked.snap", "~/Downloads/linked.deb"})
        EXPECT_FALSE(installerType(machine.path(place), System::linux)) << place;
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
