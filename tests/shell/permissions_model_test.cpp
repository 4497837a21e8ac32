#include "shell/permissions_model.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <vector>

#include "support/child_process.h"
#include "support/sample_machine.h"
#include "support/test_loop.h"

namespace tidewell {
namespace {

constexpr auto machinesFile = "/Library/Application Support/com.apple.TCC/TCC.db";
constexpr auto usersFile = "~/Library/Application Support/com.apple.TCC/TCC.db";

class PermissionsModelTest : public testing::Test {
 protected:
    std::shared_ptr<PermissionsModel> makeModel() {
        auto host = machine.host();
        host.ownBundle.path = "/opt/Tidewell.app";
        const Workspace workspace{
            .openUrl = [this](const std::string& url) { opened.push_back(url); },
            .reveal = [this](const std::string& path) { revealed.push_back(path); }};
        return std::make_shared<PermissionsModel>(host, workspace, didBecomeActive);
    }
    bool hasAccess() { return makeModel()->hasFullDiskAccess(); }
    /// Rights do not hold an administrator off, so that a plain user has to look.
    bool hasAccessAsPlainUser() {
        test::ChildProcess child([this] {
            if (::geteuid() == 0 && ::setuid(65534) != 0) return false;
            return hasAccess();
        });
        return child.succeeded();
    }
    void openToOtherUsers() const {
        namespace fs = std::filesystem;
        fs::permissions(machine.root(), fs::perms(0755));
    }
    void setRights(std::string_view path, int rights) const {
        std::filesystem::permissions(machine.path(path), std::filesystem::perms(rights));
    }

    const test::SampleMachine machine;
    test::TestLoop loop;
    Signal didBecomeActive;
    std::vector<std::string> opened;
    std::vector<std::string> revealed;
};

TEST_F(PermissionsModelTest, TakesTheRightToOpenTheFirstProtectedFileAsTheGrant) {
    openToOtherUsers();
    EXPECT_FALSE(hasAccess());
    machine.text(usersFile, "");
    EXPECT_TRUE(hasAccessAsPlainUser());
    setRights(usersFile, 0);
    EXPECT_FALSE(hasAccessAsPlainUser());

    setRights(usersFile, 0644);
    machine.text(machinesFile, "");
    EXPECT_TRUE(hasAccessAsPlainUser());
    setRights(machinesFile, 0);
    EXPECT_FALSE(hasAccessAsPlainUser());
}

TEST_F(PermissionsModelTest, LooksAgainWheneverTheProgramComesToTheFront) {
    auto model = makeModel();
    int published = 0;
    const auto subscription = model->willChange.subscribe([&] { ++published; });
    machine.text(usersFile, "");
    EXPECT_FALSE(model->hasFullDiskAccess());
    didBecomeActive.fire();
    EXPECT_EQ(published, 0);
    loop.runTurns();
    EXPECT_TRUE(model->hasFullDiskAccess());
    didBecomeActive.fire();
    loop.runTurns();
    EXPECT_EQ(published, 2);
    machine.remove(usersFile);
    didBecomeActive.fire();
    loop.runTurns();
    EXPECT_FALSE(model->hasFullDiskAccess());

    didBecomeActive.fire();
    model.reset();
    loop.runTurns();
    didBecomeActive.fire();
    loop.runTurns();
    EXPECT_EQ(published, 3);
}

TEST_F(PermissionsModelTest, LeadsToTheSettingsAndToTheProgramItself) {
    const auto model = makeModel();
    model->openSettings();
    model->revealApp();
    EXPECT_EQ(opened,
              (std::vector<std::string>{
                  "x-apple.systempreferences:com.apple.preference.security?Privacy_AllFiles"}));
    EXPECT_EQ(revealed, (std::vector<std::string>{"/opt/Tidewell.app"}));
}

}  // namespace
}  // namespace tidewell
