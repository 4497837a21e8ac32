#pragma once

#include <string_view>

namespace tidewell {

/// Whether a folder can be somebody's home, by where it lies on its machine: `place` is absolute
/// and standardised, "/" being the machine's own root. What holds the homes, what holds the system,
/// and everything in the system's folders is none: a home there would make the machine itself the
/// user's own.
bool canBeHome(std::string_view place);

}  // namespace tidewell
