#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tidewell {

/// "/home/ada/Server does not answer and was left out."; absent if there is none.
std::optional<std::string> silentMountsNote(const std::vector<std::string>& places);

}  // namespace tidewell
