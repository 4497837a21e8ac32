#include "advisor/advisor_service.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/sample_machine.h"
#include "support/simulator_tools.h"

namespace tidewell::test {
namespace {

constexpr auto dockerDisk = "~/Library/Containers/com.docker.docker/Data/vms/0/data/Docker.raw";

TEST(AdvisorService, ListsWhatTheToolsListAndSeesWhatTheyDelete) {
    const SampleMachine machine;
    const SimulatorTools tools(machine);
    tools.runtime("OLD", R"({"sizeBytes":5000,"runtimeIdentifier":"x.iOS-16-4"})");
    tools.runtime("NEW", R"({"sizeBytes":7000,"runtimeIdentifier":"x.iOS-17-5"})");
    tools.devices(R"({"devices":{"x.iOS-17-5":[{"name":"iPhone 15","isAvailable":true}],
                                 "x.iOS-12-0":[{"name":"iPhone 6","isAvailable":false}]}})");
    tools.snapshots("Snapshots for disk /:\ncom.apple.TimeMachine.2026-01-02-030405.local\n");
    const AdvisorService service(machine.host());

    const auto runtimes = service.simRuntimes();
    ASSERT_EQ(runtimes.size(), 2);
    EXPECT_EQ(runtimes[0].name, "iOS 17.5");
    EXPECT_EQ(runtimes[0].deviceNames, std::vector<std::string>{"iPhone 15"});
    EXPECT_EQ(runtimes[1].id, "OLD");
    EXPECT_EQ(service.unavailableSimCount(), 1);
    EXPECT_EQ(service.localSnapshotCount(), 1);

    EXPECT_TRUE(service.deleteRuntime(runtimes[1]));
    EXPECT_FALSE(service.deleteRuntime(runtimes[1])) << "it is gone";
    EXPECT_FALSE(machine.has("/state/runtimes/OLD"));
    EXPECT_EQ(service.simRuntimes().size(), 1);
    EXPECT_TRUE(service.removeUnavailableSims());
    EXPECT_EQ(service.unavailableSimCount(), 0);
    EXPECT_TRUE(service.thinSnapshots());
    EXPECT_EQ(service.localSnapshotCount(), 0);
}

SimRuntime withId(std::string id) {
    SimRuntime runtime;
    runtime.id = std::move(id);
    return runtime;
}

void expectNothing(const AdvisorService& service, std::string_view what) {
    EXPECT_TRUE(service.simRuntimes().empty()) << what;
    EXPECT_TRUE(service.deviceNamesByRuntime().empty()) << what;
    EXPECT_EQ(service.unavailableSimCount(), 0) << what;
    EXPECT_EQ(service.localSnapshotCount(), 0) << what;
}

void expectRefusals(const AdvisorService& service, std::string_view what) {
    EXPECT_FALSE(service.deleteRuntime(withId("X"))) << what;
    EXPECT_FALSE(service.removeUnavailableSims()) << what;
    EXPECT_FALSE(service.thinSnapshots()) << what;
}

TEST(AdvisorService, AToolThatIsMissingOrCannotStartFindsAndDoesNothing) {
    const SampleMachine machine;
    const AdvisorService service(machine.host());
    expectNothing(service, "missing");
    expectRefusals(service, "missing");

    const SimulatorTools tools(machine);
    tools.runtime("A", "{}");
    for (const auto* tool : {"/usr/bin/xcrun", "/usr/bin/tmutil"})
        std::filesystem::permissions(machine.path(tool), std::filesystem::perms(0644));
    expectNothing(service, "not executable");
    expectRefusals(service, "not executable");
}

/// Puts the same script in the place of both tools. What it prints would be a good answer to each
/// question.
void replaceTools(const SampleMachine& machine, std::string_view end) {
    const std::string answer = R"sh(
case "$*" in
"simctl runtime list -j") echo '{"A":{"sizeBytes":1}}' ;;
"simctl list devices -j") echo '{"devices":{"x":[{"name":"B","isAvailable":false}]}}' ;;
"listlocalsnapshots /") echo 'com.apple.TimeMachine.1' ;;
esac
)sh";
    for (const auto* tool : {"/usr/bin/xcrun", "/usr/bin/tmutil"})
        machine.tool(tool, answer + std::string(end));
}

TEST(AdvisorService, GoodOutputOfAToolThatFailsInTheEndIsDiscarded) {
    const SampleMachine machine;
    const AdvisorService service(machine.host());
    replaceTools(machine, "exit 0\n");
    EXPECT_EQ(service.simRuntimes().size(), 1);
    EXPECT_EQ(service.unavailableSimCount(), 1);
    EXPECT_EQ(service.localSnapshotCount(), 1);
    EXPECT_TRUE(service.thinSnapshots()) << "an empty output is no failure";
    for (const auto* end : {"exit 1\n", "exit 72\n", "kill -TERM $$\n", "kill -KILL $$\n"}) {
        replaceTools(machine, end);
        expectNothing(service, end);
        expectRefusals(service, end);
    }
}

TEST(AdvisorService, OutputLargerThanAPipeIsReadToItsEndBesideNoise) {
    const SampleMachine machine;
    machine.tool("/usr/bin/xcrun", R"sh(
[ "$2" = runtime ] || exit 1
noise() { head -c 300000 /dev/zero >&2; }
noise
printf '{'
seq 1 5000 | sed 's/.*/"runtime-&":{"name":"A rather long name for a runtime","sizeBytes":&},/'
noise
printf '"last":{}}'
)sh");
    const auto runtimes = AdvisorService(machine.host()).simRuntimes();
    ASSERT_EQ(runtimes.size(), 5001);
    EXPECT_EQ(runtimes.front().id, "runtime-5000");
    EXPECT_EQ(runtimes.back().id, "last");
}

TEST(AdvisorService, ARuntimesIdReachesTheToolAsOneWordWhateverItHolds) {
    const SampleMachine machine;
    machine.tool("/usr/bin/xcrun", "printf '%s|' \"$@\" > \"$0.words\"\n");
    const AdvisorService service(machine.host());
    EXPECT_TRUE(service.deleteRuntime(withId("a b; rm -rf * $(echo \"x\")")));
    EXPECT_EQ(machine.contentOf("/usr/bin/xcrun.words"),
              "simctl|runtime|delete|a b; rm -rf * $(echo \"x\")|");
}

TEST(AdvisorService, DockersDiskIsMeasuredWithoutAnyTool) {
    const SampleMachine machine;
    const AdvisorService service(machine.host());
    EXPECT_EQ(service.dockerBytes(), 0);
    machine.file(dockerDisk, 3 * megabyte);
    machine.file("~/Library/Containers/com.docker.docker/Data/log/vm.log", megabyte);
    EXPECT_EQ(service.dockerBytes(), 3 * megabyte);
}

}  // namespace
}  // namespace tidewell::test
