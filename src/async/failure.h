#pragma once

#include <exception>
#include <string>

namespace tidewell {

/// What is said of a failure inside the program: "there is not enough memory", else the
/// exception's own words. Not empty.
std::string failureText(const std::exception_ptr& failure);

}  // namespace tidewell
