#pragma once

#include <string>

namespace tidewell {

/// The real location of the program that runs; empty if the system does not tell. Any thread.
std::string ownProgram();

}  // namespace tidewell
