#include "advisor/simulator_lists.h"

#include <gtest/gtest.h>

#include "platform/dates.h"

namespace tidewell::test {
namespace {

SimRuntime onlyRuntime(std::string_view record, const DeviceNames& deviceNames = {}) {
    const auto records = parseRuntimeRecords(R"({"the-key":)" + std::string(record) + "}");
    if (!records) {
        ADD_FAILURE() << "not read: " << record;
        return {};
    }
    return runtimesFrom(*records, deviceNames).front();
}

std::string nested(std::string_view open, std::string_view close, int depth) {
    std::string text;
    for (int level = 0; level < depth; ++level) text += open;
    for (int level = 0; level < depth; ++level) text += close;
    return text;
}

TEST(SimulatorLists, ACompleteRecordIsReadAsItStands) {
    const DeviceNames names = {{"com.example.iOS-17-5", {"iPhone", "iPad"}}, {"other", {"Watch"}}};
    const auto runtime = onlyRuntime(R"json({"identifier":"4F1E","name":"iOS 17.5 (21F79)",
        "runtimeIdentifier":"com.example.iOS-17-5","build":"21F79","sizeBytes":7291881472,
        "deletable":false,"lastUsedAt":"2026-03-04T05:06:07Z"
})json",
                                     names);
    EXPECT_EQ(runtime.id, "4F1E");
    EXPECT_EQ(runtime.name, "iOS 17.5 (21F79)");
    EXPECT_EQ(runtime.build, "21F79");
    EXPECT_EQ(runtime.sizeBytes, 7291881472);
    EXPECT_FALSE(runtime.deletable);
    ASSERT_TRUE(runtime.lastUsed);
    EXPECT_EQ(iso8601(*runtime.lastUsed), "2026-03-04T05:06:07Z");
    EXPECT_EQ(runtime.deviceNames, names.at("com.example.iOS-17-5"));
}

TEST(SimulatorLists, EachFieldThatIsMissingOrOfAnotherTypeTakesItsDefault) {
    for (const auto* record : {
             "{}",
             R"({"identifier":7,"name":null,"runtimeIdentifier":[],"build":21,"sizeBytes":"8 GB",
                 "deletable":"no","lastUsedAt":1718000000})",
             R"({"sizeBytes":true,"deletable":0,"lastUsedAt":"yesterday"})",
             R"({"sizeBytes":1e300,"deletable":null,"lastUsedAt":""})",
         }) {
        const auto runtime = onlyRuntime(record, {{"", {"nobody's"}}});
        EXPECT_EQ(runtime.id, "the-key") << record;
        EXPECT_EQ(runtime.name, "Simulator runtime") << record;
        EXPECT_EQ(runtime.build, "") << record;
        EXPECT_EQ(runtime.sizeBytes, 0) << record;
        EXPECT_TRUE(runtime.deletable) << record;
        EXPECT_FALSE(runtime.lastUsed) << record;
        EXPECT_TRUE(runtime.deviceNames.empty()) << record;
    }
}

TEST(SimulatorLists, ASizeWithAFractionIsCutAndADateMayHaveFractions) {
    const auto runtime =
        onlyRuntime(R"({"sizeBytes":4096.9,"lastUsedAt":"2026-03-04T05:06:07.25Z"})");
    EXPECT_EQ(runtime.sizeBytes, 4096);
    ASSERT_TRUE(runtime.lastUsed);
    EXPECT_EQ(*runtime.lastUsed - *parseIso8601("2026-03-04T05:06:07Z", Fractions::absent),
              std::chrono::milliseconds(250));
}

TEST(SimulatorLists, ANameIsMadeFromTheLastPieceOfTheIdentifier) {
    const struct {
        std::string identifier;
        std::string name;
    } rows[] = {
        {"com.apple.CoreSimulator.SimRuntime.iOS-17-5", "iOS 17.5"},
        {"com.apple.CoreSimulator.SimRuntime.watchOS-10-2", "watchOS 10.2"},
        {"com.example.visionOS", "visionOS"},
        {"tvOS--18-0-1-..", "tvOS 18.0.1"},
        {"com.example.-18", "-18"},
        {"com.example.-", "-"},
        {"...", "Simulator runtime"},
        {"", "Simulator runtime"},
    };
    for (const auto& [identifier, name] : rows)
        EXPECT_EQ(onlyRuntime(R"({"runtimeIdentifier":")" + identifier + "\"}").name, name);
}

TEST(SimulatorLists, RuntimesComeLargestFirst) {
    const auto records = parseRuntimeRecords(
        R"({"a":{"sizeBytes":1},"b":{"sizeBytes":3},"c":{"sizeBytes":2},"d":{"sizeBytes":3}})");
    ASSERT_TRUE(records);
    std::string order;
    for (const auto& runtime : runtimesFrom(*records, {})) order += runtime.id;
    EXPECT_EQ(order, "bdca");
}

TEST(SimulatorLists, OutputOfAnyOtherShapeIsNoList) {
    for (const auto& output : {
             std::string(),
             std::string("No runtimes."),
             std::string("[]"),
             std::string("null"),
             std::string("{"),
             std::string(R"({"a":{}} trailing)"),
             std::string(R"({"a":{"sizeBytes":1},"b":7})"),
             std::string(R"({"a":[{}]})"),
             std::string(R"({"a":{},"b":null})"),
             nested(R"({"a":)", "}", 100000),
             nested("[", "]", 100000),
             nested(R"({"a":)", "", 600),
         })
        EXPECT_FALSE(parseRuntimeRecords(output)) << output.substr(0, 40);
    EXPECT_TRUE(parseRuntimeRecords("{}")->empty());
}

TEST(SimulatorLists, DevicesAreNamedInTheirOrderAndTheUnavailableCounted) {
    constexpr auto list = R"({"extra":1,"devices":{
        "iOS":[{"name":"iPhone","isAvailable":true},{"isAvailable":false},
               {"name":"iPad","isAvailable":false},{"name":7}],
        "none":[],
        "tvOS":[{"name":"TV","isAvailable":"false"},{"name":"Old TV","isAvailable":0},
                {"name":"Dead TV","isAvailable":false,"state":"Shutdown"}]}})";
    const DeviceNames expected = {
        {"iOS", {"iPhone", "iPad"}}, {"none", {}}, {"tvOS", {"TV", "Old TV", "Dead TV"}}};
    EXPECT_EQ(parseDeviceNames(list), expected);
    EXPECT_EQ(countUnavailableDevices(list), 3);
}

TEST(SimulatorLists, ADeviceListOfAnyOtherShapeHoldsNothing) {
    for (const auto& output : {
             std::string(),
             std::string("{}"),
             std::string(R"([{"devices":{}}])"),
             std::string(R"({"devices":[{"name":"iPhone","isAvailable":false}]})"),
             std::string(R"({"devices":{"iOS":{"name":"iPhone","isAvailable":false}}})"),
             std::string(R"({"devices":{"iOS":[{"name":"A","isAvailable":false}],"x":[1]}})"),
             std::string(R"({"devices":{"iOS":[{"name":"A","isAvailable":false}],"x":null}})"),
             R"({"devices":{"iOS":[{"name":"A","isAvailable":false},)" + nested("[", "]", 100000) +
                 "]}}",
         }) {
        EXPECT_TRUE(parseDeviceNames(output).empty()) << output.substr(0, 60);
        EXPECT_EQ(countUnavailableDevices(output), 0) << output.substr(0, 60);
    }
}

TEST(SimulatorLists, OnlyLinesThatNameASnapshotCount) {
    const struct {
        std::string text;
        std::int64_t count;
    } rows[] = {
        {"", 0},
        {"Snapshots for disk /:\n", 0},
        {"Snapshots for disk /:\ncom.apple.TimeMachine.2026-01-02-030405.local\n\n"
         "com.apple.os.update-1234\ncom.apple.TimeMachine.2026-01-03-030405.local",
         2},
        {"COM.APPLE.TIMEMACHINE.1\r\nx com.apple.TimeMachine com.apple.TimeMachine\r\n", 1},
        {"com.apple.TimeMachine.1\ncom.apple.TimeMachine.\xff\n", 0},
    };
    for (const auto& [text, count] : rows) EXPECT_EQ(countLocalSnapshots(text), count) << text;
}

TEST(SimRuntime, NamesThreeOfItsSimulatorsAtMost) {
    const std::vector<std::string> names = {"A", "B", "C", "D", "E"};
    const std::string labels[] = {
        "No simulators currently use it",
        "Used by 1 simulator: A",
        "Used by 2 simulators: A, B",
        "Used by 3 simulators: A, B, C",
        "Used by 4 simulators: A, B, C +1 more",
        "Used by 5 simulators: A, B, C +2 more",
    };
    SimRuntime runtime;
    for (std::size_t count = 0; count <= names.size(); ++count) {
        runtime.deviceNames.assign(names.begin(), names.begin() + static_cast<int>(count));
        EXPECT_EQ(runtime.usedByLabel(), labels[count]);
    }
}

}  // namespace
}  // namespace tidewell::test
