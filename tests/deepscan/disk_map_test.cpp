#include "deepscan/disk_map.h"

#include <gtest/gtest.h>

#include <numeric>

#include "cleanup/disk_scanner.h"
#include "cleanup/project_artifacts.h"
#include "cleanup/target_catalogue.h"
#include "support/linux_desktop.h"

namespace tidewell::test {
namespace {

constexpr ByteCount block = 4096;

ByteCount sumOf(const std::array<ByteCount, mapVerdictCount>& bytes) {
    return std::accumulate(bytes.begin(), bytes.end(), ByteCount{0});
}

PlaceVerdict verdictOf(const SampleMachine& machine, std::string_view place) {
    return PlaceJudge(machine.host()).know(machine.path(place)).verdict;
}

/// Whatever Clean lists is told by its row, and nothing is that it does not list.
TEST(PlaceJudge, SaysOfEachPlaceWhatCleanWouldDoWithIt) {
    const SampleMachine machine(System::linux);
    furnishLinuxDesktop(machine);
    const auto& host = machine.host();
    const DiskScanner scanner(host);
    PlaceJudge judge(host);
    auto targets = cleanupCatalogue(host);
    std::ranges::move(findProjectArtifacts(host), std::back_inserter(targets));
    std::size_t told = 0;
    for (const auto& target : targets)
        for (const auto& path : scanner.placesOf(target)) {
            const auto verdict = judge.know(path).verdict;
            if (!DeletionGuard(host).approve(path)) continue;
            const bool isSafe = target.safety == SafetyLevel::safe;
            EXPECT_EQ(verdict.verdict, isSafe ? MapVerdict::ticked : MapVerdict::review) << path;
            EXPECT_EQ(verdict.row, target.title) << path;
            ++told;
        }
    EXPECT_GT(told, 20U);
    for (const auto* kept : {"~/Documents/Thesis/thesis.tex", "~/Documents/x/venv/notes.txt",
                             "~/.cache/some-tool/index", "~/.cache/huggingface/token",
                             "~/.config/google-chrome/Default/History", "~/.config/Signal"}) {
        const auto verdict = judge.know(machine.path(kept)).verdict;
        EXPECT_NE(verdict.verdict, MapVerdict::ticked) << kept;
        EXPECT_NE(verdict.verdict, MapVerdict::rebuildable) << kept;
    }
}

TEST(PlaceJudge, GoesByTheNearestThingThatIsKnown) {
    const SampleMachine machine;
    machine.file("~/Code/app/build/out/x");
    machine.text("~/Code/app/package.json", "{}");
    machine.file("~/Library/Group Containers/group.com.apple.notes/a/b");
    machine.file("~/.ollama/models/blobs/x");
    EXPECT_EQ(verdictOf(machine, "~/Code/app/build/out/x").verdict, MapVerdict::review);
    EXPECT_EQ(verdictOf(machine, "~/Code/app").verdict, MapVerdict::other);
    EXPECT_EQ(verdictOf(machine, "~/Documents/thesis.tex").sentence, "These are your own files.");
    EXPECT_EQ(verdictOf(machine, "~/.ssh/id").verdict, MapVerdict::appData);
    const auto inside = verdictOf(machine, "~/Library/Group Containers/group.com.apple.notes/a/b");
    EXPECT_EQ(inside.verdict, MapVerdict::personal);
    EXPECT_EQ(inside.sentence,
              verdictOf(machine, "~/Library/Group Containers/group.com.apple.notes").sentence);
    const auto model = verdictOf(machine, "~/.ollama/models/blobs/x");
    EXPECT_TRUE(model.verdict == MapVerdict::appData && !model.sentence.empty());
}

TEST(DiskMap, FindsItsNodesAndLosesWhatIsTaken) {
    const SampleMachine machine;
    machine.file("~/a/\xff\n/one", 30 * block);
    machine.file("~/a/two", 20 * block);
    machine.file("~/.npm/x", 40 * block);
    for (int file = 0; file < 3000; ++file) machine.file("~/many/" + std::to_string(file), 0);
    auto map = mapDisk(machine.host(), machine.home());
    ASSERT_FALSE(map.isEmpty());
    const auto whole = map[0].bytes;
    EXPECT_EQ(sumOf(bytesByVerdict(map)), whole);
    const auto one = map.find(machine.path("~/a/\xff\n/one"));
    ASSERT_TRUE(one);
    EXPECT_EQ(map.path(*one), machine.path("~/a/\xff\n/one"));
    EXPECT_EQ(map.find(machine.path("~/a/two/deeper")), map.find(machine.path("~/a/two")));
    EXPECT_EQ(map.find("/elsewhere"), std::nullopt);

    const auto npm = map.find(machine.path("~/.npm"));
    EXPECT_EQ(map[*npm].verdict.verdict, MapVerdict::ticked);
    const auto nodes = std::vector(map.nodes().begin(), map.nodes().end());
    const auto taken = map.take(*npm);
    map.putBack(taken);
    for (std::size_t at = 0; at < nodes.size(); ++at)
        EXPECT_EQ(map.nodes()[at].bytes, nodes[at].bytes);
    map.take(*npm);
    map.take(*one);
    map.take(0);
    EXPECT_EQ(map[0].bytes, whole - 70 * block);
    EXPECT_EQ(map[map[*one].parent].bytes, 0);
    EXPECT_EQ(sumOf(bytesByVerdict(map)), map[0].bytes);

    StopSource stopped;
    stopped.request_stop();
    EXPECT_TRUE(mapDisk(machine.host(), machine.home(), {.stop = stopped.get_token()}).isEmpty());
}

}  // namespace
}  // namespace tidewell::test
