#include "apps/apps_view_model.h"
#include "apps/screens/apps_content.h"

#include <gtest/gtest.h>

#include "apps/apps_machine.h"
#include "platform/dates.h"
#include "support/test_loop.h"

namespace tidewell::test {

namespace {

using Names = std::vector<std::string>;
using Phase = AppsViewModel::Phase;

class AppsViewModelTest : public testing::Test {
 protected:
    void install(const std::string& name, ByteCount size, std::optional<int> lastUsedDays = {}) {
        const auto path = "/Applications/" + name + ".app";
        machine.application(path, {{"CFBundleIdentifier", "com.acme." + name}}, size);
        if (lastUsedDays) machine.lastUsed(path, *lastUsedDays);
    }
    void scan() {
        spawn(model, &AppsViewModel::scan);
        loop.runAll();
    }
    void prepare(std::size_t index) {
        spawn(model, &AppsViewModel::prepareUninstall, model->apps().at(index));
    }
    void uninstall(std::size_t index) {
        prepare(index);
        loop.runAll();
        spawn(model, &AppsViewModel::confirmUninstall);
        loop.runAll();
    }

    TestLoop loop;
    SampleMachine machine;
    std::shared_ptr<AppsViewModel> model = std::make_shared<AppsViewModel>(machine.host());
};

TEST_F(AppsViewModelTest, ScansOnceAtATimeAndKeepsTheOldListUntilTheNewOneIsThere) {
    install("One", megabyte);
    scan();
    EXPECT_EQ(model->phase(), Phase::list);
    EXPECT_EQ(model->totalAppBytes(), megabyte + 4 * kilobyte);

    install("Two", megabyte);
    model->lastResult = UninstallResult{};
    std::vector<double> fractions;
    const auto observer =
        model->willChange.subscribe([&] { fractions.push_back(model->scanProgress()); });
    spawn(model, &AppsViewModel::scan);
    spawn(model, &AppsViewModel::scan);
    loop.runTurns();
    EXPECT_EQ(model->phase(), Phase::scanning);
    EXPECT_EQ(model->scanProgress(), 0.0);
    EXPECT_FALSE(model->lastResult());
    EXPECT_EQ(loop.inBackground(), 1u);
    EXPECT_EQ(namesOf(model->apps()), Names{"One"});

    loop.runAll();
    EXPECT_EQ(namesOf(model->apps()), (Names{"One", "Two"}));
    EXPECT_EQ(model->phase(), Phase::list);
    EXPECT_EQ(model->scanProgress(), 1.0);
    EXPECT_NE(std::ranges::find(fractions, 0.5), fractions.end());
}

TEST_F(AppsViewModelTest, ListsTheApplicationsInTheChosenOrder) {
    install("apple", 3 * megabyte, 40);
    install("Zebra", 1 * megabyte, 50);
    install("Banana", 4 * megabyte, 200);
    install("cherry", 4 * megabyte);
    scan();
    EXPECT_EQ(namesOf(model->sortedApps()), (Names{"cherry", "Banana", "apple", "Zebra"}));
    model->sortOrder = SortOrder::largest;
    EXPECT_EQ(namesOf(model->sortedApps()), (Names{"Banana", "cherry", "apple", "Zebra"}));
    model->sortOrder = SortOrder::name;
    EXPECT_EQ(namesOf(model->sortedApps()), (Names{"apple", "Banana", "cherry", "Zebra"}));
    EXPECT_EQ(namesOf(model->apps()), (Names{"Banana", "Zebra", "apple", "cherry"}));
}

TEST_F(AppsViewModelTest, UninstallsWhatWasPreparedAndKeepsTheRest) {
    install("Notes", megabyte);
    install("Rest", megabyte);
    machine.file("~/Library/Caches/Notes/x");
    scan();
    const auto before = model->totalAppBytes();
    prepare(0);
    loop.runTurns();
    EXPECT_TRUE(model->isBuildingPlan());
    loop.runAll();
    EXPECT_FALSE(model->isBuildingPlan());
    ASSERT_TRUE(model->pendingPlan());
    EXPECT_EQ(model->pendingPlan()->leftovers.size(), 1u);

    spawn(model, &AppsViewModel::confirmUninstall);
    loop.runTurns();
    EXPECT_FALSE(model->pendingPlan());  // the sheet closes before the work is done
    EXPECT_TRUE(machine.has("/Applications/Notes.app"));
    loop.runAll();
    EXPECT_FALSE(machine.has("/Applications/Notes.app"));
    EXPECT_EQ(namesOf(model->apps()), Names{"Rest"});
    EXPECT_EQ(model->totalAppBytes(), before - megabyte - 4 * kilobyte);
    ASSERT_TRUE(model->lastResult());
    EXPECT_EQ(model->lastResult()->movedCount, 2);
    EXPECT_EQ(appsContent(*model, now()).banner->undoLabel, "Put Back");

    spawn(model, &AppsViewModel::putBack);
    spawn(model, &AppsViewModel::putBack);
    loop.runAll();
    EXPECT_TRUE(machine.has("/Applications/Notes.app") && machine.has("~/Library/Caches/Notes/x"));
    EXPECT_EQ(model->apps().size(), 2u);
    const auto banner = *appsContent(*model, now()).banner;
    EXPECT_EQ(banner.title + ": " + banner.line, "Put Notes back: 2 items are where they were.");
    EXPECT_EQ(banner.undoLabel, "");
    model->dismissResult();
    EXPECT_FALSE(appsContent(*model, now()).banner);

    while (!model->apps().empty()) uninstall(0);
    EXPECT_TRUE(model->apps().empty());
    EXPECT_EQ(model->phase(), Phase::list);
}

TEST_F(AppsViewModelTest, OffersNoApplicationThatIsGoingOrGone) {
    install("Notes", megabyte);
    scan();
    for (int press = 0; press < 3; ++press) prepare(0);
    loop.runTurns();
    loop.finish();
    spawn(model, &AppsViewModel::confirmUninstall);
    loop.runTurns();
    loop.finish();  // the second search
    EXPECT_FALSE(model->pendingPlan()) << "it is on its way";
    loop.finish(1);
    ASSERT_FALSE(machine.has("/Applications/Notes.app"));
    loop.finish();  // the third
    EXPECT_FALSE(model->pendingPlan()) << "it is gone";
}

TEST_F(AppsViewModelTest, DoesNothingWithoutAPlan) {
    install("Notes", megabyte);
    scan();
    prepare(0);
    loop.runAll();
    model->pendingPlan = std::nullopt;
    spawn(model, &AppsViewModel::confirmUninstall);
    loop.runAll();
    EXPECT_TRUE(machine.has("/Applications/Notes.app"));
    EXPECT_FALSE(model->lastResult());
    EXPECT_EQ(model->apps().size(), 1u);
}

TEST_F(AppsViewModelTest, KeepsAnApplicationWhoseBundleStayed) {
    install("Notes", megabyte);
    machine.file("~/Library/Caches/Notes/x");
    machine.file("~/Library/Logs/Notes/x");
    scan();
    prepare(0);
    loop.runAll();
    machine.remove("/Applications/Notes.app");
    spawn(model, &AppsViewModel::confirmUninstall);
    loop.runAll();
    EXPECT_EQ(model->apps().size(), 1u);
    EXPECT_EQ(model->lastResult()->movedCount, 2);
    EXPECT_EQ(model->lastResult()->failed, Names{"Notes.app"});
}

TEST_F(AppsViewModelTest, TakesThePlanWhoseSearchEndsLast) {
    install("One", megabyte);
    install("Two", megabyte);
    scan();
    prepare(0);
    prepare(1);
    loop.runTurns();
    ASSERT_EQ(loop.inBackground(), 2u);
    loop.finish(1);
    EXPECT_FALSE(model->isBuildingPlan());
    EXPECT_EQ(model->pendingPlan()->app.name, "Two");
    loop.finish(0);
    EXPECT_EQ(model->pendingPlan()->app.name, "One");
}

}  // namespace

}  // namespace tidewell::test
