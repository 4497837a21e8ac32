#include "advisor/sim_runtime.h"

#include <algorithm>
#include <cstdint>

#include "kit/count_text.h"

namespace tidewell {

namespace {

constexpr std::size_t namesShown = 3;

std::string joinedNames(const std::vector<std::string>& names) {
    std::string joined;
    for (std::size_t index = 0; index < std::min(names.size(), namesShown); ++index)
        joined += (index == 0 ? "" : ", ") + names[index];
    return joined;
}

}  // namespace

std::string SimRuntime::usedByLabel() const {
    const auto count = deviceNames.size();
    if (count == 0) return "No simulators currently use it";
    auto label = "Used by " + countText(static_cast<std::int64_t>(count), "simulator") + ": " +
                 joinedNames(deviceNames);
    if (count > namesShown) label += " +" + std::to_string(count - namesShown) + " more";
    return label;
}

}  // namespace tidewell
