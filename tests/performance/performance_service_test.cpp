#include "performance/performance_service.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <set>

#include "support/running_program.h"
#include "support/sample_machine.h"

namespace tidewell {
namespace {

using test::RunningProgram;
using test::SampleMachine;

std::string propertyList(const std::string& content) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + content +
           "</plist>";
}

std::string definition(const std::string& members) {
    return propertyList("<dict>" + members + "</dict>");
}

struct Row {
    std::string label;
    std::string program;
    std::string scope;
    std::string file;

    bool operator==(const Row&) const = default;
};

void PrintTo(const Row& row, std::ostream* out) {
    *out << row.label << " | " << row.program << " | " << row.scope << " | " << row.file;
}

class PerformanceServiceTest : public testing::Test {
 protected:
    std::vector<Row> loginRows() const {
        std::vector<Row> rows;
        for (const auto& item : service.loginItems())
            rows.push_back({item.label, item.program, item.scope,
                            item.plistURL.substr(machine.root().size())});
        return rows;
    }

    const SampleMachine machine;
    const PerformanceService service{machine.host()};
};

TEST_F(PerformanceServiceTest, ListsLoginItemsOfThreeFoldersByLabel) {
    machine.text("~/Library/LaunchAgents/zed.plist",
                 definition("<key>Label</key><string>same</string>"
                            "<key>Program</key><string>/bin/zed</string>"
                            "<key>ProgramArguments</key><array><string>no</string></array>"));
    machine.text("/Library/LaunchAgents/a.plist",
                 definition("<key>Label</key><string>SAME</string><key>Disabled</key><true/>"
                            "<key>Program</key><integer>1</integer>"
                            "<key>ProgramArguments</key><array><string>run</string>"
                            "<string>-x</string></array>"));
    machine.text("/Library/LaunchDaemons/org.files.plist",
                 definition("<key>Label</key><integer>5</integer>"
                            "<key>ProgramArguments</key><array/>"));
    machine.text("/Library/LaunchDaemons/b.plist",
                 definition("<key>Label</key><string>Äther</string><key>ProgramArguments</key>"
                            "<array><string>run</string><integer>1</integer></array>"));
    EXPECT_EQ(loginRows(),
              (std::vector<Row>{
                  {"Äther", "—", "System", "/Library/LaunchDaemons/b.plist"},
                  {"org.files", "—", "System", "/Library/LaunchDaemons/org.files.plist"},
                  {"same", "/bin/zed", "You", "/Users/ada/Library/LaunchAgents/zed.plist"},
                  {"SAME", "run", "System", "/Library/LaunchAgents/a.plist"},
              }));

    std::set<std::string> ids;
    for (int reading = 0; reading < 2; ++reading)
        for (const auto& item : service.loginItems()) ids.insert(item.id);
    EXPECT_EQ(ids.size(), 8U);
}

TEST_F(PerformanceServiceTest, PassesOverWhatDefinesNoLoginItem) {
    const auto good = definition("<key>Label</key><string>good</string>");
    machine.text("/Library/LaunchAgents/good.plist", good);
    machine.text("/Library/LaunchAgents/upper.PLIST", good);
    machine.text("/Library/LaunchAgents/backup.plist.bak", good);
    machine.text("/Library/LaunchAgents/.plist", good);
    machine.text("/Library/LaunchAgents/cut.plist", good.substr(0, good.size() / 2));
    machine.text("/Library/LaunchAgents/empty.plist", "");
    machine.text("/Library/LaunchAgents/list.plist", propertyList("<array/>"));
    machine.folder("/Library/LaunchAgents/folder.plist");
    machine.link("/Library/LaunchAgents/dangling.plist", "nowhere");
    ::mkfifo(machine.path("/Library/LaunchAgents/pipe.plist").c_str(), 0600);
    machine.text("~/Documents/secret/x.plist", good);
    machine.link("~/Library/LaunchAgents", machine.path("~/Documents/secret"));
    EXPECT_EQ(loginRows(),
              (std::vector<Row>{{"good", "—", "System", "/Library/LaunchAgents/good.plist"}}));
}

TEST_F(PerformanceServiceTest, ListsRegularApplicationsButThisOneLargestFirst) {
    machine.application("/Applications/Paint.app", {{"CFBundleIdentifier", "org.paint"}});
    machine.application("/Applications/Agent.app", {{"LSUIElement", "true"}});
    machine.application("/Applications/Own.app",
                        {{"CFBundleIdentifier", machine.host().ownBundle.identifier}});
    const RunningProgram paint(test::executableOf(machine, "/Applications/Paint.app"));
    const RunningProgram agent(test::executableOf(machine, "/Applications/Agent.app"));
    const RunningProgram own(test::executableOf(machine, "/Applications/Own.app"));
    const RunningProgram noName(machine.path("/Applications/.app/Contents/MacOS/x"));

    const auto apps = service.runningApps();
    ASSERT_EQ(apps.size(), 2U);
    EXPECT_GE(apps[0].memoryBytes, apps[1].memoryBytes);
    EXPECT_GT(apps[1].memoryBytes, 0);
    const auto& first = apps[0].id == paint.processId() ? apps[0] : apps[1];
    const auto& other = apps[0].id == paint.processId() ? apps[1] : apps[0];
    EXPECT_EQ(first.id, paint.processId());
    EXPECT_EQ(first.name, "Paint");
    EXPECT_EQ(first.bundleID, "org.paint");
    EXPECT_EQ(first.url, machine.path("/Applications/Paint.app"));
    EXPECT_EQ(other.name, "App");
    EXPECT_EQ(other.bundleID, std::nullopt);
}

}  // namespace
}  // namespace tidewell
