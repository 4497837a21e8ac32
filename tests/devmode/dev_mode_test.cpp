#include <gtest/gtest.h>

#include <map>
#include <type_traits>

#include "devmode/ai_model_scanner.h"
#include "devmode/dev_mode_view_model.h"
#include "devmode/dev_targets.h"
#include "devmode/developer_machine.h"
#include "devmode/screens/dev_mode_content.h"
#include "support/sample_machine.h"
#include "support/test_loop.h"

namespace tidewell {

namespace {

using test::megabyte;
using test::SampleMachine;
using test::TestLoop;
using Phase = DevModeViewModel::Phase;

std::vector<std::string> toolsFound(const SampleMachine& machine) {
    std::vector<std::string> tools;
    for (const auto& store : AIModelScanner(machine.host()).scan()) tools.push_back(store.tool);
    return tools;
}

class DevMode : public ::testing::Test {
 protected:
    void scan() {
        spawn(model, &DevModeViewModel::scan);
        loop.runAll();
    }
    std::vector<std::string> tickedIds() const {
        std::vector<std::string> ids;
        for (const auto& item : model->selectedItems()) ids.push_back(item.target.id);
        return ids;
    }

    SampleMachine machine;
    TestLoop loop;
    std::shared_ptr<DevModeViewModel> model = std::make_shared<DevModeViewModel>(machine.host());
};

CleanupTarget targetNamed(std::string id, std::string title,
                          CleanupCategory category = CleanupCategory::developerCaches) {
    return {.id = std::move(id),
            .title = std::move(title),
            .detail = "",
            .category = category,
            .paths = {}};
}

}  // namespace

// Nothing that removes or moves anything takes a model store.
static_assert(!std::is_convertible_v<AIModelStore, CleanupItem>);
static_assert(!std::is_convertible_v<AIModelStore, CleanupTarget>);
static_assert(!std::is_constructible_v<DeletablePath, AIModelStore>);

TEST(AIModels, AreMeasuredAtTheFirstPlaceThatExists) {
    const SampleMachine machine;
    machine.folder("/Applications/Ollama.app");
    machine.folder("/Applications/ComfyUI.app");
    machine.file("~/.lmstudio/models/small", 4096);
    machine.file("~/.cache/lm-studio/models/large", 501 * megabyte);
    machine.file("~/stable-diffusion-webui/models/a", 510 * megabyte);
    machine.file("~/StabilityMatrix/Data/Models/a", 520 * megabyte);
    EXPECT_EQ(toolsFound(machine), (std::vector<std::string>{"Stability Matrix models",
                                                             "Stable Diffusion WebUI models"}));
}

TEST(DeveloperMachine, IsTakenForOneByAnyOfItsPlaces) {
    for (const auto* place : {"/Applications/Xcode.app", "~/.cargo", "/opt/homebrew",
                              "/usr/local/Homebrew", "~/.cache/torch", "~/miniforge3"}) {
        const SampleMachine machine;
        EXPECT_FALSE(isDeveloperMachine(machine.host()));
        machine.folder(place);
        EXPECT_TRUE(isDeveloperMachine(machine.host())) << place;
    }
}

TEST_F(DevMode, ScansRowsCachesAndArtifactsThenModels) {
    machine.file("~/.npm/one", 8192);
    machine.file("~/Library/Caches/com.spotify.client/x", 1 << 20);  // no developer's
    machine.file("~/.cache/torch/hub/checkpoints/resnet", 65536);
    machine.file("~/Code/app/node_modules/x", 16384);
    machine.file("~/.ollama/models/blob", 501 * megabyte);
    spawn(model, &DevModeViewModel::scan);
    loop.runTurns();
    loop.finish();
    EXPECT_EQ(loop.inBackground(), 4U);
    spawn(model, &DevModeViewModel::scan);
    loop.runTurns();
    EXPECT_EQ(loop.inBackground(), 4U);
    loop.runAll();
    EXPECT_EQ(model->phase(), Phase::review);
    ASSERT_EQ(model->items().size(), 3U);
    EXPECT_EQ(model->items()[0].target.id, "torch-hub-cache");
    EXPECT_EQ(tickedIds().size(), 2U);
    ASSERT_EQ(model->models().size(), 1U);
    EXPECT_GE(model->modelsBytes(), 501 * megabyte);
    EXPECT_EQ(devReviewContent(*model).headline, "Found 90 KB to clear.");
}

TEST_F(DevMode, CleansAndKeepsItsItemsWhenItStartsOver) {
    machine.file("~/.npm/one", 8192);
    machine.text("~/.cache/huggingface/token", "secret");
    machine.file("~/.cache/huggingface/hub/models/blob", 16384);
    scan();
    model->setAllSelected(Tick::on);
    spawn(model, &DevModeViewModel::clean);
    loop.runTurns();
    EXPECT_EQ(loop.inBackground(), 1U);
    spawn(model, &DevModeViewModel::scan);  // not during a clean
    loop.runAll();
    EXPECT_EQ(model->phase(), Phase::done);
    EXPECT_EQ(model->freedBytes(), 24576);
    EXPECT_EQ(devDoneTitle(*model), "Freed 25 KB");
    EXPECT_EQ(machine.contentOf("~/.cache/huggingface/token"), "secret");
    EXPECT_EQ(UserDefaults(machine.host().configurationDirectory).integer("totalFreedBytes"),
              24576);
    EXPECT_EQ(UserDefaults(machine.host().configurationDirectory).real("lastCleanupAt"), 0.0);
    model->stopAfterItemInHand();
    model->reset();
    EXPECT_EQ(model->phase(), Phase::idle);
    EXPECT_EQ(model->freedBytes(), 0);
    EXPECT_EQ(model->items().size(), 2U);
    machine.file("~/.npm/two");
    spawn(model, &DevModeViewModel::clean);  // the wish to stop is forgotten, the items are not
    loop.runAll();
    EXPECT_FALSE(machine.has("~/.npm/two"));
}

TEST_F(DevMode, TicksWithinAGroupAlone) {
    machine.file("~/.npm/one", 8192);
    machine.file("~/.m2/repository/jar", 4096);
    machine.file("~/.cache/torch/hub/checkpoints/resnet", 65536);
    scan();
    model->setAllSelected(Tick::on);
    model->selectSafeOnly({"npm-cache"});
    EXPECT_EQ(tickedIds().size(), 3U);
    model->setSelected(Tick::off, {"npm-cache", "unknown"});
    EXPECT_EQ(tickedIds(), (std::vector<std::string>{"torch-hub-cache", "maven-repo"}));
    model->selectSafeOnly();
    EXPECT_EQ(tickedIds(), (std::vector<std::string>{"npm-cache", "maven-repo"}));
    const auto torch = model->binding(model->items().front());
    torch.set(Tick::on);
    EXPECT_TRUE(torch.get());
    model.reset();
    EXPECT_FALSE(torch.get());
}

TEST(DevGroups, FollowTheirRulesInOrder) {
    struct Row {
        CleanupTarget target;
        std::string_view group;
    };
    const Row rows[] = {
        {targetNamed("hf-hub-cache", "npm", CleanupCategory::aiCaches), "AI caches"},
        {targetNamed("artifact:build:/a/Pods/build", ""), "Build output"},
        {targetNamed("artifact:.cxx:/a/.cxx", ""), "Build output"},
        {targetNamed("artifact:target:/a/target", ""), "Rust"},
        {targetNamed("artifact:node_modules:/a", ""), "Node & JS"},
        {targetNamed("artifact:.tox:/a", ""), "Python"},
        {targetNamed("artifact:Pods:/a", ""), "CocoaPods"},
        {targetNamed("artifact:.terraform:/a", ""), "Infra"},
        {targetNamed("rust-thing", "Pods"), "Rust"},
        {targetNamed("claude-vm-bundles", "Claude Code VM images"), "Node & JS"},  // "bun"
        {targetNamed("claude-app-caches", "Claude app caches"), "Editors & AI apps"},
        {targetNamed("x", "go-build"), "Other"},
        {targetNamed("go-build-cache", "Go build cache"), "Go"},
        {targetNamed("cli-tool-caches", "Command-line tool caches"), "CLI caches"},
        {targetNamed("uv-cache", "uv cache"), "Python"},
        {targetNamed("x", "iOS DEVICE SUPPORT"), "Xcode"},
        {targetNamed("XCODE", "x"), "Other"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(devGroupOf(row.target), row.group) << row.target.id << ", " << row.target.title;
}

TEST(DevGroups, PutEveryLinuxRowWherePeopleLookForIt) {
    const SampleMachine machine(System::linux);
    std::map<std::string, std::string_view> groupOf;
    CleanupItems items;
    for (const auto& target : devTargets(machine.host())) {
        groupOf[target.id] = devGroupOf(target);
        items.push_back({.target = target, .resolvedPaths = {}, .sizeBytes = 1});
    }
    std::size_t shown = 0;
    for (const auto& group : devRail(items, {})) shown += group.count;
    EXPECT_EQ(shown, items.size());
    EXPECT_EQ(groupOf["pre-commit-cache"], "Python");
    EXPECT_EQ(groupOf["android-studio-caches"], "Java & Android");
    EXPECT_EQ(groupOf["gopls-cache"], "Go");
    EXPECT_EQ(groupOf["conda-pkg-cache"], "AI caches");
    EXPECT_EQ(groupOf["editor-app-caches"], "Editors & AI apps");
    EXPECT_FALSE(groupOf.contains("chrome-cache"));
}

TEST(DevRail, HasTheGroupsThatHoldSomethingAndTheModelsLast) {
    CleanupItems items(3);
    items[0] = {.target = targetNamed("npm-cache", ""), .resolvedPaths = {}, .sizeBytes = 1000};
    items[1] = {.target = targetNamed("yarn-cache", ""), .resolvedPaths = {}, .sizeBytes = 5000};
    items[2] = {.target = targetNamed("xcode-caches", ""), .resolvedPaths = {}, .sizeBytes = 10};
    const std::vector<AIModelStore> models = {{"/m", "Ollama models", 600'000'000, ""}};
    const auto rail = devRail(items, models);
    ASSERT_EQ(rail.size(), 3U);
    EXPECT_EQ(rail[0].label, "Xcode");
    EXPECT_EQ(rail[1].line, "2 · 6 KB");
    EXPECT_EQ(rail[1].items.front().target.id, "yarn-cache");
    EXPECT_EQ(rail[2].label, "Large AI models");
    EXPECT_EQ(rail[2].line, "1 · 600 MB");
    EXPECT_TRUE(rail[2].isModels);
    EXPECT_EQ(devGroupInView(rail, "Node & JS"), 1U);
    EXPECT_EQ(devGroupInView(rail, "gone"), 0U);
    EXPECT_EQ(devGroupInView({}, "gone"), std::nullopt);
    EXPECT_EQ(devRail({}, models).size(), 1U);
}

}  // namespace tidewell
