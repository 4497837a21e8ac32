#pragma once

namespace tidewell {

/// Which system laid a machine out: what lies where on it and what its things are called. That is
/// not the system that the program runs on, which only src/platform/ knows.
enum class System { macOS, linux };

/// The one that the program was built for, which a home folder without any sign is taken to be of.
System ownSystem();

}  // namespace tidewell
