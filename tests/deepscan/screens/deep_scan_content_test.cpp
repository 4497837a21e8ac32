#include "deepscan/screens/deep_scan_content.h"

#include <gtest/gtest.h>

#include "deepscan/big_item_support.h"

namespace tidewell::test {
namespace {

using Kind = BigItem::Kind;
using Page = DeepScanContent::Page;
using Phase = DeepScanViewModel::Phase;

struct DeepScanScreen : testing::Test {
    DeepScanContent content() const { return deepScanContent(model, state); }
    void show(std::vector<BigItem> items) {
        model.items = std::move(items);
        model.phase = Phase::list;
    }
    /// The bucket shown, and its cards.
    std::string shown() const {
        std::string text;
        for (const auto& row : content().rail)
            if (row.isViewing) text += row.look.title;
        for (const auto& card : content().cards) text += "|" + card.item.name;
        return text;
    }

    DeepScanViewModel model{Host{}};
    DeepScanScreenState state;
};

TEST_F(DeepScanScreen, SaysWhereTheScanStands) {
    EXPECT_EQ(content().page, Page::start);
    model.items = std::vector{bigItem("old", Kind::other)};
    model.phase = Phase::scanning;
    model.scanProgress = 0.25;
    EXPECT_EQ(content().page, Page::scanning);
    EXPECT_EQ(content().progress, 0.25);
    EXPECT_TRUE(content().cards.empty() && content().scanLabel.empty());
    show({});
    EXPECT_EQ(content().page, Page::nothingFound);
    EXPECT_EQ(content().placard.title, "No big items over 80 MB");
}

TEST_F(DeepScanScreen, SortsItemsIntoRowsByRiskAndNeverShowsAnEmptyOne) {
    show({bigItem("p", Kind::personal, 500'000'000), bigItem("c", Kind::cache, 300'000'000),
          bigItem("v", Kind::container, 200'000'000), bigItem("o", Kind::other),
          bigItem("r", Kind::rebuildable), bigItem("a", Kind::appData),
          bigItem("i", Kind::installer)});
    EXPECT_EQ(content().summary, "7 big items • 1.36 GB");
    std::string rail;
    for (const auto& row : content().rail)
        rail += std::string(row.look.title) + " " + row.line + "\n";
    EXPECT_EQ(rail,
              "Safe to clear 2 · 390 MB\nInstallers 1 · 90 MB\nContainers & VMs 1 · 200 MB\n"
              "Check first 1 · 90 MB\nYour stuff 1 · 500 MB\nOther 1 · 90 MB\n");
    EXPECT_EQ(content().rail[4].look.iconBackground, (Color{0.96, 0.26, 0.37, 0.16}));
    EXPECT_EQ(content().rail[5].look.iconColor, whiteAt(0.55));

    EXPECT_EQ(shown(), "Safe to clear|c|r");
    state.viewingBucket = RiskBucket::personal;
    EXPECT_EQ(shown(), "Your stuff|p");
    EXPECT_EQ(content().bucketSubtitle,
              "Looks like your own files. Reveal and check before trashing.");
    show({bigItem("o", Kind::other)});
    EXPECT_EQ(shown(), "Other|o");
}

TEST_F(DeepScanScreen, OffersOnACardWhatIsSafeForTheItem) {
    auto docker = bigItem("Docker data", Kind::container);
    docker.reclaimCommand = "docker system prune";
    const auto card = bigItemCard(docker, {}, System::macOS);
    EXPECT_FALSE(card.trashHelp);
    EXPECT_EQ(card.copyCommand->label, "Copy command");
    EXPECT_EQ(card.copyCommand->help, "Copy “docker system prune” to run in Terminal");
    EXPECT_EQ(bigItemCard(docker, {docker.id}, System::macOS).copyCommand->label, "Copied");

    const auto film = bigItemCard(bigItem("/m/film", Kind::personal), {}, System::macOS);
    EXPECT_EQ(film.trashHelp, "Move film to Trash");
    EXPECT_FALSE(film.copyCommand);
    EXPECT_EQ(film.note, "No intel on this one. Hit Reveal and check it first.");
}

TEST_F(DeepScanScreen, AsksBeforeTrashingWhatMayBeMissedAndTellsHowItEnded) {
    for (const auto kind : {Kind::appData, Kind::personal}) EXPECT_TRUE(asksBeforeTrashing(kind));
    for (const auto kind : {Kind::cache, Kind::rebuildable, Kind::installer, Kind::other})
        EXPECT_FALSE(asksBeforeTrashing(kind));
    EXPECT_FALSE(content().confirmation || content().banner);

    state.pendingTrash = bigItem("/m/Mail", Kind::appData);
    EXPECT_TRUE(content().confirmation->message.starts_with("“Mail” (90 MB) holds app data."));
    model.lastResult = BigItemScanner::TrashOutcome{"film", 0, false};
    EXPECT_EQ(content().banner->text,
              "Couldn't move film. It may need Full Disk Access or admin rights.");
}

}  // namespace
}  // namespace tidewell::test
