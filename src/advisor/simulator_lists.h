#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "advisor/sim_runtime.h"
#include "platform/value.h"

namespace tidewell {

// What the platform's tools print, made into values. All of it is foreign data: whatever does not
// have the expected shape reads as nothing, and a record that lacks a field takes a default.
// Any thread.

/// The records of the runtime list by the key under which each stands.
using RuntimeRecords = Value::Object;

/// The names of the simulators by the identifier of the runtime that they use, in the tool's order.
using DeviceNames = std::map<std::string, std::vector<std::string>, std::less<>>;

/// Absent for what is no JSON object of objects.
std::optional<RuntimeRecords> parseRuntimeRecords(std::string_view json);

/// One runtime for each record, largest first.
std::vector<SimRuntime> runtimesFrom(const RuntimeRecords& records, const DeviceNames& deviceNames);

/// "iOS 17.5" for an identifier whose last piece is "iOS-17-5"; absent if it has no pieces.
std::optional<std::string> friendlyRuntimeName(std::string_view runtimeIdentifier);

/// Devices without a name are passed over; empty for any other shape than that of a device list.
DeviceNames parseDeviceNames(std::string_view json);

/// How many devices are said to be unavailable; 0 for any other shape than that of a device list.
std::int64_t countUnavailableDevices(std::string_view json);

/// How many lines name a local snapshot; 0 for what is no UTF-8 text.
std::int64_t countLocalSnapshots(std::string_view text);

}  // namespace tidewell
