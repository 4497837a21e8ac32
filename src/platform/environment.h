#pragma once

#include <string>

namespace tidewell {

/// A variable of the environment; empty if it is not set. Any thread, as long as none sets one.
std::string environmentValue(const char* name);

}  // namespace tidewell
