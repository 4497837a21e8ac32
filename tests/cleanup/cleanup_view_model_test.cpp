#include "cleanup/cleanup_view_model.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

#include <new>

#include "cleanup/screens/review_content.h"
#include "cleanup/screens/scan_content.h"
#include "support/allocation_failure.h"
#include "support/sample_machine.h"
#include "support/test_loop.h"

namespace tidewell {

namespace {

using test::SampleMachine;
using test::TestLoop;
using Phase = CleanupViewModel::Phase;

class CleanTool : public ::testing::Test {
 protected:
    void scan() {
        spawn(model, &CleanupViewModel::startScan);
        loop.runAll();
    }
    void clean() {
        spawn(model, &CleanupViewModel::cleanSelected);
        loop.runAll();
    }
    std::vector<std::string> ids() const {
        std::vector<std::string> found;
        for (const auto& item : model->items()) found.push_back(item.target.id);
        return found;
    }
    UserDefaults defaults() const { return UserDefaults(machine.host().configurationDirectory); }
    const CleanupItem& item(std::string_view id) const { return *findItem(model->items(), id); }

    SampleMachine machine;
    TestLoop loop;
    std::shared_ptr<CleanupViewModel> model = std::make_shared<CleanupViewModel>(machine.host());
};

}  // namespace

TEST_F(CleanTool, ListsWhatItFoundLargestFirstWithSafeItemsTicked) {
    machine.file("~/.npm/one", 8192);
    machine.file("~/.Trash/movie", 65536);
    machine.file("~/Code/app/node_modules/x", 16384);
    scan();
    EXPECT_EQ(model->phase(), Phase::review);
    EXPECT_EQ(ids(),
              (std::vector<std::string>{
                  "trash", "artifact:node_modules:" + machine.path("~/Code/app/node_modules"),
                  "npm-cache"}));
    EXPECT_EQ(model->totalBytes(), 90112);
    EXPECT_EQ(model->selectedBytes(), 24576);
    EXPECT_EQ(model->scanProgress(), 1.0);
    EXPECT_EQ(model->currentTarget(), std::nullopt);
    EXPECT_GT(model->freeSpaceBefore(), 0);
}

TEST_F(CleanTool, MeasuresFourTargetsAtATimeAndNamesTheOneStartedLast) {
    machine.file("~/.npm/one");
    spawn(model, &CleanupViewModel::startScan);
    loop.runTurns();
    EXPECT_EQ(model->phase(), Phase::scanning);
    EXPECT_EQ(loop.inBackground(), 1U);  // the artifact search, alone
    loop.finish();
    EXPECT_EQ(loop.inBackground(), 4U);
    EXPECT_EQ(model->currentTarget(), std::nullopt);
    loop.finish(2);
    EXPECT_EQ(loop.inBackground(), 4U);
    EXPECT_EQ(model->currentTarget(), "Gradle caches");
    EXPECT_DOUBLE_EQ(model->scanProgress(), 1.0 / 65);
    EXPECT_TRUE(model->items().empty());

    spawn(model, &CleanupViewModel::startScan);  // a second scan has no effect
    loop.runTurns();
    EXPECT_EQ(loop.inBackground(), 4U);
    EXPECT_DOUBLE_EQ(model->scanProgress(), 1.0 / 65);
    loop.runAll();
    EXPECT_EQ(ids(), std::vector<std::string>{"npm-cache"});
}

TEST_F(CleanTool, KeepsItemsOfEqualSizeInTheOrderInWhichTheirMeasuresEnded) {
    machine.file("~/Library/Developer/Xcode/DerivedData/a");
    machine.file("~/.npm/a");
    spawn(model, &CleanupViewModel::startScan);
    loop.runTurns();
    loop.finish();
    loop.finish(3);  // npm is the fourth row
    loop.runAll();
    EXPECT_EQ(ids(), (std::vector<std::string>{"npm-cache", "xcode-derived-data"}));
}

TEST_F(CleanTool, EndsInReviewOnAMachineWithNothingToClean) {
    scan();
    EXPECT_EQ(model->phase(), Phase::review);
    EXPECT_TRUE(model->items().empty());
    EXPECT_TRUE(reviewContent(*model, {}, 0).isEmpty);
    clean();
    EXPECT_EQ(model->phase(), Phase::review);
}

TEST_F(CleanTool, CleansTheTickedItemsAndStoresWhatWasFreed) {
    const UserDefaults defaults(machine.host().configurationDirectory);
    machine.file("~/.npm/one", 8192);
    machine.file("~/.Trash/movie", 65536);
    machine.file("~/.m2/repository/jar", 4096);
    scan();
    spawn(model, &CleanupViewModel::cleanSelected);
    loop.runTurns();
    EXPECT_EQ(model->phase(), Phase::cleaning);
    EXPECT_EQ(loop.inBackground(), 1U);  // one item at a time
    spawn(model, &CleanupViewModel::startScan);
    loop.runTurns();
    EXPECT_EQ(loop.inBackground(), 1U);  // nor a scan meanwhile
    loop.finish();
    EXPECT_DOUBLE_EQ(model->cleanProgress(), 0.5);
    EXPECT_EQ(model->freedBytes(), 0);  // published at the end
    loop.runAll();
    EXPECT_EQ(model->phase(), Phase::done);
    EXPECT_EQ(model->freedBytes(), 12288);
    EXPECT_TRUE(model->failedTitles().empty());
    EXPECT_FALSE(machine.has("~/.npm/one"));
    EXPECT_TRUE(machine.has("~/.Trash/movie"));
    EXPECT_EQ(model->items().size(), 3U);
    EXPECT_EQ(defaults.integer("totalFreedBytes"), 12288);
    EXPECT_GT(defaults.real("lastCleanupAt"), 1.7e9);
}

TEST_F(CleanTool, CountsFilesThatVanishedBeforeTheCleanAsFreed) {
    machine.file("~/.npm/one", 8192);
    machine.file("~/.ssh/config", 4096);
    scan();
    model->items.mutate().front().resolvedPaths = {machine.path("~/.npm/gone")};
    clean();
    EXPECT_EQ(model->freedBytes(), 8192);
    EXPECT_TRUE(model->failedTitles().empty());
}

TEST_F(CleanTool, NamesWhatCouldNotBeRemoved) {
    machine.file("~/.npm/one", 8192);
    machine.file("~/.m2/repository/jar", 4096);
    scan();
    for (auto& ticked : model->items.mutate()) ticked.resolvedPaths = {machine.path("~/.ssh")};
    machine.file("~/.ssh/key", 65536);
    clean();
    EXPECT_EQ(model->phase(), Phase::done);
    EXPECT_EQ(model->failedTitles(), (std::vector<std::string>{"npm cache", "Maven repository"}));
    EXPECT_EQ(cleanedContent(*model).failureNote,
              "npm cache, Maven repository. macOS may need Full Disk Access for these. Grant it in "
              "System Settings ▸ Privacy & Security.");
    EXPECT_EQ(cleanedContent(*model).ringLine, "All done");
    EXPECT_TRUE(machine.has("~/.ssh/key"));
}

TEST_F(CleanTool, StopsBehindTheItemInHandWhenAskedTo) {
    machine.file("~/.npm/one", 8192);
    machine.file("~/.m2/repository/jar", 4096);
    scan();
    spawn(model, &CleanupViewModel::cleanSelected);
    loop.runTurns();
    model->stopAfterItemInHand();
    loop.runAll();
    EXPECT_EQ(model->phase(), Phase::done);
    EXPECT_EQ(model->freedBytes(), 8192);
    EXPECT_EQ(UserDefaults(machine.host().configurationDirectory).integer("totalFreedBytes"), 8192);
    EXPECT_TRUE(machine.has("~/.m2/repository/jar"));
    scan();
    spawn(model, &CleanupViewModel::cleanSelected);
    model->stopAfterItemInHand();  // before the clean has had its first turn
    loop.runAll();
    EXPECT_TRUE(machine.has("~/.m2/repository/jar"));
    scan();
    clean();  // the wish does not outlive its clean
    EXPECT_FALSE(machine.has("~/.m2/repository/jar"));
}

TEST_F(CleanTool, GoesOnWithoutMemoryAndTellsWhatFailed) {
    machine.file("~/.npm/one", 8192);
    machine.file("~/.Trash/movie", 65536);
    spawn(model, &CleanupViewModel::startScan);
    loop.runTurns();
    test::failNextAllocation();
    EXPECT_THROW(loop.finish(), std::bad_alloc);
    EXPECT_EQ(model->phase(), Phase::idle);

    scan();
    ASSERT_EQ(model->phase(), Phase::review);
    model->selectAll(Tick::on);
    spawn(model, &CleanupViewModel::cleanSelected);
    loop.runTurns();
    test::failNextAllocation();
    loop.runAll();
    EXPECT_EQ(model->phase(), Phase::done);
    EXPECT_EQ(model->failedTitles(), std::vector<std::string>{"Empty Trash"});
    EXPECT_EQ(model->freedBytes(), 8192);
    EXPECT_EQ(defaults().integer("totalFreedBytes"), 8192);
}

TEST_F(CleanTool, AddsToTheSumOnceWhoeverHoldsItsFileLetsGo) {
    machine.file("~/.npm/one", 8192);
    scan();
    ASSERT_EQ(defaults().add("totalFreedBytes", 1), UserDefaults::Written::yes);
    const auto lock = machine.host().configurationDirectory + "/defaults.lock";
    const int holder = ::open(lock.c_str(), O_RDWR);
    ASSERT_EQ(::flock(holder, LOCK_EX), 0);
    clean();
    EXPECT_EQ(model->phase(), Phase::done);
    EXPECT_FALSE(model->isSumStored());
    EXPECT_EQ(defaults().integer("totalFreedBytes"), 1);

    ::close(holder);
    for (int round = 0; round < 2; ++round) {
        loop.advance(storingInterval);
        loop.runAll();
        EXPECT_TRUE(model->isSumStored());
        EXPECT_EQ(defaults().integer("totalFreedBytes"), 8193);
    }
}

TEST_F(CleanTool, ChangesTheTicksThatAreMeantAndNoOthers) {
    machine.file("~/.npm/one", 8192);
    machine.file("~/Library/Developer/Xcode/Archives/a", 16384);
    machine.file("~/Library/Logs/a", 4096);
    machine.file("~/.Trash/a", 32768);
    scan();
    const auto ticked = [this] {
        std::vector<std::string> found;
        for (const auto& selected : model->selectedItems()) found.push_back(selected.target.id);
        return found;
    };
    using Ids = std::vector<std::string>;
    const auto system = CleanupCategory::system;
    EXPECT_EQ(model->activeCategories(),
              (std::vector{CleanupCategory::developerCaches, CleanupCategory::system}));
    model->selectAll(Tick::on);
    EXPECT_EQ(ticked(), (Ids{"trash", "xcode-archives", "npm-cache", "user-logs"}));
    model->selectSafeOnlyIn(system);
    EXPECT_EQ(ticked(), (Ids{"xcode-archives", "npm-cache", "user-logs"}));
    model->setCategory(system, Tick::off);
    EXPECT_EQ(ticked(), (Ids{"xcode-archives", "npm-cache"}));
    EXPECT_EQ(model->selectedCountIn(system), 0U);
    EXPECT_EQ(model->bytesIn(system), 36864);
    model->selectSafeOnly();
    EXPECT_EQ(ticked(), (Ids{"npm-cache", "user-logs"}));

    const auto trash = model->selectionBinding(item("trash"));
    trash.set(Tick::on);
    EXPECT_TRUE(trash.get());
    EXPECT_EQ(ticked(), (Ids{"trash", "npm-cache", "user-logs"}));
    model->reset();
    EXPECT_FALSE(trash.get());
    trash.set(Tick::on);
    model.reset();
    EXPECT_FALSE(trash.get());
    trash.set(Tick::on);
}

TEST_F(CleanTool, GoesBackToTheStart) {
    machine.file("~/.npm/one", 8192);
    scan();
    clean();
    const auto after = model->freeSpaceAfter();
    model->failedTitles = {"Trash"};
    model->freeSpaceBefore = 1;
    model->reset();
    EXPECT_TRUE(model->failedTitles().empty());
    EXPECT_GT(model->freeSpaceBefore(), 1);
    EXPECT_EQ(model->phase(), Phase::idle);
    EXPECT_TRUE(model->items().empty());
    EXPECT_EQ(model->scanProgress(), 0.0);
    EXPECT_EQ(model->cleanProgress(), 0.0);
    EXPECT_EQ(model->freedBytes(), 0);
    EXPECT_EQ(model->freeSpaceAfter(), after);
}

TEST_F(CleanTool, WordsTheReviewOfWhatItFound) {
    machine.file("~/.npm/one", 1000 * 4096);
    machine.file("~/.m2/repository/jar", 500 * 4096);
    machine.file("~/Library/Developer/Xcode/Archives/a", 4096);
    machine.file("~/.Trash/a", 4096);
    scan();
    const auto review = reviewContent(*model, CleanupCategory::appCaches, 1'000'000'000);
    EXPECT_EQ(review.headline, "Found 6.2 MB of junk.");
    EXPECT_EQ(review.viewing, CleanupCategory::developerCaches);  // the one asked for has no items
    ASSERT_EQ(review.categories.size(), 2U);
    EXPECT_EQ(review.categories[0].line, "2 of 3 · 6.1 MB");
    EXPECT_EQ(review.categories[0].mark, CheckMark::mixed);
    EXPECT_EQ(review.categories[1].mark, CheckMark::off);
    EXPECT_EQ(review.pickedLine, "2 of 4 picked");
    EXPECT_EQ(review.selectedSize, "6.1 MB");
    EXPECT_EQ(review.freeAfterLine, "1.01 GB free after this");
    ASSERT_EQ(review.chips.size(), 3U);
    EXPECT_EQ(review.chips[2].badge, "Review");
    EXPECT_TRUE(review.canClean);

    model->selectAll(Tick::off);
    const auto none = reviewContent(*model, CleanupCategory::system, 0);
    EXPECT_EQ(none.selectedSize, std::nullopt);
    EXPECT_FALSE(none.canClean);
    EXPECT_EQ(none.viewing, CleanupCategory::system);
}

}  // namespace tidewell
