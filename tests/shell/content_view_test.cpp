#include "shell/content_view.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "shell/opened_url.h"
#include "shell/screens/window_content.h"
#include "shell/start_words.h"
#include "support/sample_machine.h"
#include "support/test_loop.h"

namespace tidewell::test {
namespace {

class ContentViewTest : public testing::Test {
 protected:
    ContentViewTest() {
        application.bridge.openWindow = [this] { ++windowsOpened; };
    }

    std::shared_ptr<ContentView> makeRoot() { return std::make_shared<ContentView>(application); }
    /// A root on a start of the program of its own.
    std::vector<Mode> sidebarAfterStart() {
        Application fresh(machine.host(), Workspace(), [] {});
        return ContentView(fresh).sidebarModes();
    }

    const SampleMachine machine;
    TestLoop loop;
    std::vector<std::string> openedUrls;
    int windowsOpened = 0;
    Application application{
        machine.host(),
        {.openUrl = [this](const std::string& url) { openedUrls.push_back(url); },
         .reveal = [](const std::string&) {}},
        [] {}};
};

TEST_F(ContentViewTest, AWishIsHeardAtOnceAndActedOnAgainWhenTheWindowAppearsLater) {
    const auto root = makeRoot();
    root->appear();
    root->mode = Mode::apps;

    application.bridge.requestScan();
    EXPECT_EQ(windowsOpened, 1);
    EXPECT_EQ(root->mode(), Mode::home);
    loop.runAll();
    EXPECT_EQ(root->smartScan->phase(), SmartScanController::Phase::done);
    EXPECT_TRUE(application.bridge.autoStartScan) << "only an appearing root takes the wish away";

    root->smartScan->reset();
    root->mode = Mode::apps;
    root->appear();
    EXPECT_FALSE(application.bridge.autoStartScan);
    EXPECT_EQ(root->mode(), Mode::home);
    loop.runTurns();
    EXPECT_TRUE(root->smartScan->isRunning()) << "a second scan starts by itself";

    application.bridge.openSection("Deep Scan");
    EXPECT_EQ(root->mode(), Mode::deepScan);
    root->mode = Mode::advisor;
    root->appear();
    EXPECT_EQ(root->mode(), Mode::deepScan);
    EXPECT_EQ(application.bridge.pendingSection, std::nullopt);
    root->mode = Mode::advisor;
    root->appear();
    EXPECT_EQ(root->mode(), Mode::advisor);
}

TEST_F(ContentViewTest, WishesThatComeTogetherStartOneScan) {
    using Phase = SmartScanController::Phase;
    const auto root = makeRoot();
    application.bridge.openWindow = [&] { root->appear(); };  // it was closed
    const std::function<void()> ways[] = {
        [&] { application.bridge.requestScan(); },
        [&] {
            application.bridge.autoStartScan = true;
            application.bridge.showWindow();
            root->openUrl("tidewell://scan");
        },
        [&] {
            root->scanEverything();
            root->scanEverything();
        },
    };
    for (const auto& wish : ways) {
        wish();
        loop.runTurns();
        EXPECT_EQ(root->smartScan->phase(), Phase::clean) << "a second one would be further";
        loop.runAll();
        EXPECT_EQ(root->smartScan->phase(), Phase::done);
    }
}

TEST_F(ContentViewTest, TheWishesOfATimeWithoutAWindowComeTrueWhenItAppears) {
    application.bridge.openWindow = nullptr;
    application.bridge.requestScan();
    application.bridge.openSection("Advisor");
    const auto root = makeRoot();
    EXPECT_EQ(root->mode(), Mode::home);
    loop.runTurns();
    EXPECT_EQ(loop.inBackground(), 0) << "nothing scans by itself";
    root->appear();
    EXPECT_EQ(root->mode(), Mode::advisor) << "the section is opened behind the scan's start";
    loop.runTurns();
    EXPECT_TRUE(root->smartScan->isRunning());
}

TEST_F(ContentViewTest, WhatNamesNoSectionChangesNothing) {
    const auto root = makeRoot();
    root->mode = Mode::apps;
    for (const char* name : {"", "clean", "deepScan", "Deep  Scan", "Settings"}) {
        application.bridge.openSection(name);
        EXPECT_EQ(root->mode(), Mode::apps) << name;
        root->appear();
        EXPECT_EQ(application.bridge.pendingSection, name) << "it stays, to be looked at again";
    }
    application.notifications.post(openSectionNotification);
    EXPECT_EQ(root->mode(), Mode::apps);
    for (const auto mode : allModes) {
        application.bridge.openSection(std::string(title(mode)));
        EXPECT_EQ(root->mode(), mode);
    }
}

TEST_F(ContentViewTest, OnlyAUrlOfTheProgramWithTheHostScanScans) {
    const auto root = makeRoot();
    for (const char* url : {"tidewell://", "tidewell://scanner", "tidewell:scan", "https://scan",
                            "tidewell://Scan", "tidewell:///scan", "scan", ""}) {
        root->mode = Mode::clean;
        root->openUrl(url);
        loop.runTurns();
        EXPECT_EQ(root->mode(), Mode::clean) << url;
        EXPECT_FALSE(root->smartScan->isRunning()) << url;
    }
    for (const char* url : {"tidewell://scan", "TideWell://scan/", "tidewell://scan?now#x"}) {
        root->mode = Mode::clean;
        root->openUrl(url);
        loop.runTurns();
        EXPECT_EQ(root->mode(), Mode::home) << url;
        EXPECT_TRUE(root->smartScan->isRunning()) << url;
        root->smartScan->stop();
        loop.runAll();
    }
    EXPECT_FALSE(application.bridge.autoStartScan);
}

TEST_F(ContentViewTest, DevModeStandsInTheSidebarOfADevelopersMachineAsItWasAtTheStart) {
    const std::vector all(allModes.begin(), allModes.end());
    auto others = all;
    std::erase(others, Mode::devMode);

    const auto root = makeRoot();
    EXPECT_EQ(root->sidebarModes(), others);
    machine.folder("~/.cargo");
    EXPECT_EQ(root->sidebarModes(), others);
    EXPECT_EQ(makeRoot()->sidebarModes(), others);
    EXPECT_EQ(sidebarAfterStart(), all);
}

TEST_F(ContentViewTest, TheFreeSpaceIsReadAgainWhenACleanIsDoneAndInNoOtherPhase) {
    using Phase = CleanupViewModel::Phase;
    const auto root = makeRoot();
    int readings = 0;
    const auto counter = root->theme->willChange.subscribe([&] { ++readings; });
    root->cleanupModel->phase = Phase::done;
    loop.runTurns();
    const int readingsOfARefresh = readings;
    EXPECT_GT(readingsOfARefresh, 0);
    for (const auto phase : {Phase::idle, Phase::scanning, Phase::review, Phase::cleaning}) {
        root->cleanupModel->phase = phase;
        loop.runTurns();
        EXPECT_EQ(readings, readingsOfARefresh);
    }
    root->cleanupModel->phase = Phase::done;
    loop.runTurns();
    root->cleanupModel->freedBytes = 7;
    loop.runTurns();
    EXPECT_EQ(readings, 2 * readingsOfARefresh);
}

TEST_F(ContentViewTest, TheFirstRunScreenIsShownOnceAndTheFilmIsOptional) {
    {
        const auto root = makeRoot();
        EXPECT_FALSE(root->hasOnboarded());
        root->finishOnboarding(Intro::skip);
        EXPECT_TRUE(root->hasOnboarded());
        EXPECT_FALSE(root->playingIntro());
        EXPECT_EQ(root->introHomeOpacity(), 1.0);
    }
    const auto root = makeRoot();
    EXPECT_TRUE(root->hasOnboarded()) << "it is stored";
    root->finishOnboarding(Intro::play);
    EXPECT_TRUE(root->playingIntro());
    EXPECT_EQ(root->introHomeOpacity(), 0.0);
    root->revealHome();
    EXPECT_TRUE(root->playingIntro());
    EXPECT_EQ(root->introHomeOpacity(), 1.0);
    root->endIntro();
    EXPECT_FALSE(root->playingIntro());
}

TEST_F(ContentViewTest, TheAboutSheetIsAskedForFromOutside) {
    const auto root = makeRoot();
    application.bridge.showAbout();
    EXPECT_TRUE(root->showAbout());
    EXPECT_EQ(windowsOpened, 1);
}

TEST_F(ContentViewTest, TheDetailAreaShowsTheStepThatTheCleanToolIsAt) {
    using Phase = CleanupViewModel::Phase;
    const auto root = makeRoot();
    root->mode = Mode::clean;
    const std::pair<Phase, std::string_view> rows[] = {
        {Phase::idle, "ScanView"},     {Phase::scanning, "ScanView"},
        {Phase::review, "ReviewView"}, {Phase::cleaning, "CleanedView"},
        {Phase::done, "CleanedView"},
    };
    for (const auto& [phase, view] : rows) {
        root->cleanupModel->phase = phase;
        EXPECT_EQ(windowContent(*root).detailView, view);
    }
    root->mode = Mode::advisor;
    const auto content = windowContent(*root);
    EXPECT_EQ(content.detailView, "AdvisorView");
    EXPECT_EQ(content.accent, SectionAccent::amber);
    for (const auto& row : content.rows) EXPECT_EQ(row.isActive, row.mode == Mode::advisor);
}

TEST(StartWords, AreFoldersAndAUrlAndNothingElse) {
    const auto wish = [](std::vector<std::string> words) {
        return std::get<StartWish>(parseStartWords(words));
    };
    EXPECT_EQ(wish({}).url, std::nullopt);
    EXPECT_EQ(wish({"--home", "/a", "tidewell://scan", "--root", "b"}).url, "tidewell://scan");
    EXPECT_EQ(wish({"--home", "/a"}).host.home, "/a");
    EXPECT_EQ(wish({"--root", "b"}).host.root, "b");
    EXPECT_FALSE(wish({"--root", "b"}).showsTimings);
    EXPECT_TRUE(wish({"--timings", "tidewell://scan"}).showsTimings);

    const std::vector<std::string> wrongCalls[] = {
        {"--root"}, {"--root", "a", "--home"}, {"--verbose"}, {"/tmp"}, {"https://scan"}, {""}};
    for (const auto& words : wrongCalls) {
        const auto parsed = parseStartWords(words);
        ASSERT_TRUE(std::holds_alternative<StartEnding>(parsed));
        EXPECT_EQ(std::get<StartEnding>(parsed).reason, StartEnding::Reason::wrongCall);
    }
    EXPECT_EQ(std::get<StartEnding>(parseStartWords({"--help"})).reason,
              StartEnding::Reason::asked);
}

}  // namespace
}  // namespace tidewell::test
