#include "advisor/simulator_lists.h"

#include "fuzz_target.h"

void tidewell::test::readHostileInput(std::string_view bytes) {
    const auto names = parseDeviceNames(bytes);
    require(!names.empty() || countUnavailableDevices(bytes) == 0);
    require(countLocalSnapshots(bytes) >= 0);
    const auto records = parseRuntimeRecords(bytes);
    if (!records) return;
    const auto runtimes = runtimesFrom(*records, names);
    require(runtimes.size() == records->size());
    for (std::size_t index = 1; index < runtimes.size(); ++index)
        require(runtimes[index - 1].sizeBytes >= runtimes[index].sizeBytes);
}
