#pragma once

#include <string>

namespace tidewell {

/// A fraction as a whole percent, cut and not rounded: 99 until the very end.
int wholePercent(double fraction);

/// "99%"
std::string percentText(double fraction);

}  // namespace tidewell
