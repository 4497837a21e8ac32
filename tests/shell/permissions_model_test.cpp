#include "shell/permissions_model.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

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
        return std::make_shared<PermissionsModel>(machine.host(), Workspace(), didBecomeActive);
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

}  // namespace
}  // namespace tidewell
