#include "apps/app_scanner.h"

#include <gtest/gtest.h>

#include <limits>

#include "apps/apps_machine.h"

namespace tidewell::test {

namespace {

using Names = std::vector<std::string>;

/// A binary Info dictionary with nothing but an identifier, which must be shorter than 15 bytes.
std::string binaryInfo(const std::string& identifier) {
    const std::string key = "CFBundleIdentifier";
    std::string bytes = "bplist00";
    bytes += "\xD1\x01\x02";        // a dictionary: object 1 is object 2
    bytes += "\x5F\x10\x12" + key;  // a text of 18 bytes
    bytes += static_cast<char>(0x50 + identifier.size());
    bytes += identifier;
    const auto table = static_cast<char>(bytes.size());
    bytes += std::string("\x08\x0B\x20", 3);  // where the objects begin
    bytes += std::string("\0\0\0\0\0\0\x01\x01", 8) + std::string("\0\0\0\0\0\0\0\x03", 8);
    return bytes + std::string(8, '\0') + std::string(7, '\0') + table;
}

InstalledApp usedAt(std::optional<Date> date) {
    return {.id = "x",
            .name = "X",
            .url = "/Applications/X.app",
            .bundleID = {},
            .version = {},
            .sizeBytes = 0,
            .lastUsed = date};
}

TEST(AppScanner, FindsApplicationsInTheFoldersAndOneFolderDownEachOnce) {
    const SampleMachine machine;
    for (const auto* path :
         {"/Applications/Direct.app", "/Applications/Direct.app/Contents/Resources/Nested.app",
          "/Applications/Suite/Inner.app", "/Applications/Suite/Deep/TooDeep.app",
          "/Applications/Utilities/Gauge.app", "/Applications/.Dotted.app",
          "/Applications/.cellar/Unseen.app", "/Applications/Loud.APP", "~/Applications/Own.app"})
        machine.application(path, {});
    machine.file("/Applications/Plain.app");
    machine.file("/Applications/Read Me.txt");
    machine.link("/Applications/Linked Suite", machine.path("/Applications/Suite"));

    EXPECT_EQ(namesOf(scannerOf(machine).scan()),
              (Names{".Dotted", "Direct", "Plain", "Inner", "Gauge", "Own"}));
}

TEST(AppScanner, ReportsEveryBundleAlsoThePassedOverOnes) {
    const SampleMachine machine;
    std::vector<double> fractions;
    const auto report = [&](double fraction) { fractions.push_back(fraction); };
    EXPECT_TRUE(scannerOf(machine).scan(report).empty());
    EXPECT_TRUE(fractions.empty());

    machine.application("/Applications/Applesque.app", {{"CFBundleIdentifier", "com.applesque"}});
    machine.application("/Applications/Mail.app", {{"CFBundleIdentifier", "com.apple.mail"}});
    machine.application("/System/Applications/Chess.app", {{"CFBundleIdentifier", "org.chess"}});
    const AppScanner scanner(machine.host(),
                             {machine.path("/Applications"), machine.path("/System/Applications")});
    EXPECT_EQ(namesOf(scanner.scan(report)), Names{"Applesque"});
    EXPECT_EQ(fractions, (std::vector<double>{1.0 / 3, 2.0 / 3, 1.0}));
}

TEST(AppScanner, ReadsWhatABundleSaysOfItself) {
    const SampleMachine machine;
    machine.application("/Applications/a.app",
                        {{"CFBundleIdentifier", "com.acme.a"},
                         {"CFBundleName", "Alpha"},
                         {"CFBundleDisplayName", "Alpha for People"},
                         {"CFBundleShortVersionString", "1.2"},
                         {"CFBundleVersion", "1200"}},
                        megabyte);
    machine.lastUsed("/Applications/a.app", 12);
    machine.application("/Applications/b.app",
                        {{"CFBundleDisplayName", "Beta"}, {"CFBundleVersion", "7"}});
    machine.application("/Applications/c.app", {{"CFBundleName", ""}});
    machine.text("/Applications/d.app/Contents/Info.plist",
                 "<plist version=\"1.0\"><dict><key>CFBundleName</key><integer>4</integer>"
                 "<key>CFBundleIdentifier</key><true/></dict></plist>");
    machine.text("/Applications/e.app/Contents/Info.plist", binaryInfo("com.acme.e"));
    machine.file("/Applications/f.app", 8 * kilobyte);

    const auto apps = scannerOf(machine).scan();
    ASSERT_EQ(namesOf(apps), (Names{"Alpha", "Beta", "", "d", "e", "f"}));
    EXPECT_EQ(apps[0].id, "com.acme.a");
    EXPECT_EQ(apps[0].bundleID, "com.acme.a");
    EXPECT_EQ(apps[0].version, "1.2");
    EXPECT_EQ(apps[0].url, machine.path("/Applications/a.app"));
    EXPECT_EQ(apps[0].sizeBytes, megabyte + 4 * kilobyte);  // its Info dictionary takes a block
    EXPECT_TRUE(apps[0].lastUsed);
    EXPECT_EQ(apps[1].version, "7");
    EXPECT_FALSE(apps[1].lastUsed);
    EXPECT_EQ(apps[4].id, "com.acme.e");
    for (const auto index : {std::size_t{1}, std::size_t{3}, std::size_t{5}}) {
        EXPECT_EQ(apps[index].id, apps[index].url);
        EXPECT_FALSE(apps[index].bundleID);
    }
    EXPECT_EQ(apps[5].sizeBytes, 8 * kilobyte);
    EXPECT_FALSE(apps[5].version);
}

TEST(InstalledApp, CountsIdlenessInMonthsOfThirtyDays) {
    using std::chrono::days;
    const Date today =
        std::chrono::sys_days(std::chrono::year(2026) / 7 / 15) + std::chrono::hours(12);
    EXPECT_EQ(monthsIdle(usedAt(today - days(29)), today), 0);
    EXPECT_EQ(monthsIdle(usedAt(today - days(30)), today), 1);
    EXPECT_EQ(monthsIdle(usedAt(today + days(40)), today), 0);
    EXPECT_EQ(monthsIdle(usedAt({}), today), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(lastUsedLabel(usedAt(today - days(65)), today), "Used 2 months ago");
    EXPECT_EQ(lastUsedLabel(usedAt({}), today), "No recent use on record");
}

}  // namespace

}  // namespace tidewell::test
