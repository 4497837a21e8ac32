#include "platform/workspace.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "support/sample_machine.h"

namespace tidewell {
namespace {

class WorkspaceTest : public testing::Test {
 protected:
    /// A tool that hands over its arguments in one piece, and ends with the given status.
    void tool(const std::string& name, int status) const {
        const auto result = machine.path("/" + name);
        machine.tool("/usr/bin/" + name, "printf '[%s]' \"$@\" > '" + result + ".part'\nmv '" +
                                             result + ".part' '" + result + "'\nexit " +
                                             std::to_string(status) + "\n");
    }
    /// What a tool was called with, once it has been called.
    std::string callOf(const std::string& name) const {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        while (!machine.has("/" + name) && std::chrono::steady_clock::now() < end)
            std::this_thread::yield();
        return machine.contentOf("/" + name);
    }

    const test::SampleMachine machine;
    const Workspace workspace = desktopWorkspace(machine.host());
};

TEST_F(WorkspaceTest, HandsAUrlToTheDesktopAsOneArgument) {
    tool("xdg-open", 0);
    workspace.openUrl("tool:a b'\"$HOME?x&y");
    EXPECT_EQ(callOf("xdg-open"), "[tool:a b'\"$HOME?x&y]");
}

TEST_F(WorkspaceTest, AsksTheFileManagerToShowAnEntry) {
    tool("dbus-send", 0);
    workspace.reveal("/Users/ada/a, b");
    const auto call = callOf("dbus-send");
    EXPECT_NE(call.find("[array:string:file:///Users/ada/a%2C%20b][string:]"), std::string::npos)
        << call;
    EXPECT_NE(call.find("FileManager1.ShowItems"), std::string::npos) << call;
}

TEST_F(WorkspaceTest, OpensTheFolderWhereNoFileManagerAnswers) {
    tool("dbus-send", 1);
    tool("xdg-open", 0);
    workspace.reveal("/Users/ada/a b");
    EXPECT_EQ(callOf("xdg-open"), "[/Users/ada]");
}

TEST(FileUrls, EscapeEveryByteThatIsNotPlain) {
    EXPECT_EQ(fileUrl("/a/b-c_d.e~f"), "file:///a/b-c_d.e~f");
    EXPECT_EQ(fileUrl("/ä #%?,;\xff\n"), "file:///%C3%A4%20%23%25%3F%2C%3B%FF%0A");
}

}  // namespace
}  // namespace tidewell
