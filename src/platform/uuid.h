#pragma once

#include <string>

namespace tidewell {

/// A fresh random identifier of a record: "9C5B94B1-35AD-49BB-B118-8E8FC24ABF80". Any thread.
std::string randomUuid();

}  // namespace tidewell
