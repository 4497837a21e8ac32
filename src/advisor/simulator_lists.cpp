#include "advisor/simulator_lists.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/dates.h"
#include "platform/json.h"
#include "platform/text.h"

namespace tidewell {

namespace {

constexpr std::string_view snapshotMarker = "com.apple.TimeMachine";

/// The text between the separators, empty pieces left out.
std::vector<std::string_view> pieces(std::string_view text, char separator) {
    std::vector<std::string_view> found;
    while (!text.empty()) {
        const auto piece = text.substr(0, text.find(separator));
        if (!piece.empty()) found.push_back(piece);
        text.remove_prefix(std::min(text.size(), piece.size() + 1));
    }
    return found;
}

/// A number as a whole one, a fraction cut off; 0 for anything else and for what 64 bits can't
/// hold.
ByteCount wholeNumber(const Value* value) {
    if (!value) return 0;
    if (const auto* integer = value->integer()) return *integer;
    const auto* real = value->real();
    constexpr double limit = 0x1p63;
    return real && *real >= -limit && *real < limit ? static_cast<ByteCount>(*real) : 0;
}

std::optional<bool> booleanAt(const Value& record, std::string_view key) {
    const auto* member = record.find(key);
    const auto* boolean = member ? member->boolean() : nullptr;
    return boolean ? std::optional(*boolean) : std::nullopt;
}

std::optional<Date> dateAt(const Value& record, std::string_view key) {
    const auto text = record.textAt(key);
    if (!text) return std::nullopt;
    const auto precise = parseIso8601(*text, Fractions::required);
    return precise ? precise : parseIso8601(*text, Fractions::absent);
}

SimRuntime simRuntime(const std::string& key, const Value& record, const DeviceNames& deviceNames) {
    const auto identifier = record.textAt("runtimeIdentifier");
    const auto friendlyName = friendlyRuntimeName(identifier.value_or(""));
    SimRuntime runtime{
        .id = record.textAt("identifier").value_or(key),
        .name = record.textAt("name").value_or(friendlyName.value_or("Simulator runtime")),
        .build = record.textAt("build").value_or(""),
        .sizeBytes = wholeNumber(record.find("sizeBytes")),
        .deletable = booleanAt(record, "deletable").value_or(true),
        .lastUsed = dateAt(record, "lastUsedAt"),
        .deviceNames = {},
    };
    if (!identifier) return runtime;
    if (const auto users = deviceNames.find(*identifier); users != deviceNames.end())
        runtime.deviceNames = users->second;
    return runtime;
}

bool isObject(const Value& value) {
    return value.object() != nullptr;
}

bool isListOfObjects(const Value& value) {
    return value.list() && std::ranges::all_of(*value.list(), isObject);
}

/// The members of an object whose values are all of one shape; absent for anything else.
std::optional<Value::Object> objectOf(const Value& value, bool (*hasShape)(const Value&)) {
    const auto* members = value.object();
    if (!members || !std::ranges::all_of(*members, hasShape, &Value::Object::value_type::second))
        return std::nullopt;
    return *members;
}

/// The "devices" of a device list: runtime identifiers, each with a list of objects. Absent if
/// anything in it has another shape.
std::optional<Value::Object> parseDeviceLists(std::string_view json) {
    const auto document = parseJson(json);
    const auto* devices = document ? document->find("devices") : nullptr;
    return devices ? objectOf(*devices, isListOfObjects) : std::nullopt;
}

std::vector<std::string> namesOf(const Value::List& devices) {
    std::vector<std::string> names;
    for (const auto& device : devices)
        if (auto name = device.textAt("name")) names.push_back(std::move(*name));
    return names;
}

bool isUnavailable(const Value& device) {
    return booleanAt(device, "isAvailable") == false;
}

}  // namespace

std::optional<RuntimeRecords> parseRuntimeRecords(std::string_view json) {
    const auto document = parseJson(json);
    return document ? objectOf(*document, isObject) : std::nullopt;
}

std::vector<SimRuntime> runtimesFrom(const RuntimeRecords& records,
                                     const DeviceNames& deviceNames) {
    std::vector<SimRuntime> runtimes;
    for (const auto& [key, record] : records)
        runtimes.push_back(simRuntime(key, record, deviceNames));
    std::ranges::stable_sort(runtimes, std::greater(), &SimRuntime::sizeBytes);
    return runtimes;
}

std::optional<std::string> friendlyRuntimeName(std::string_view runtimeIdentifier) {
    const auto domains = pieces(runtimeIdentifier, '.');
    if (domains.empty()) return std::nullopt;
    const auto parts = pieces(domains.back(), '-');
    if (parts.size() < 2) return std::string(domains.back());
    std::string name(parts.front());
    for (std::size_t index = 1; index < parts.size(); ++index)
        name.append(index == 1 ? " " : ".").append(parts[index]);
    return name;
}

DeviceNames parseDeviceNames(std::string_view json) {
    const auto lists = parseDeviceLists(json);
    if (!lists) return {};
    DeviceNames names;
    for (const auto& [runtimeIdentifier, devices] : *lists)
        names.emplace(runtimeIdentifier, namesOf(*devices.list()));
    return names;
}

std::int64_t countUnavailableDevices(std::string_view json) {
    const auto lists = parseDeviceLists(json);
    if (!lists) return 0;
    std::int64_t count = 0;
    for (const auto& [runtimeIdentifier, devices] : *lists)
        count += std::ranges::count_if(*devices.list(), isUnavailable);
    return count;
}

std::int64_t countLocalSnapshots(std::string_view text) {
    if (wellFormedText(text) != text) return 0;
    return std::ranges::count_if(pieces(text, '\n'), [](std::string_view line) {
        return line.find(snapshotMarker) != std::string_view::npos;
    });
}

}  // namespace tidewell
