#pragma once

#include <map>
#include <string>

namespace tidewell::test {

/// Everything below a folder, links not followed: for each path what it is, its rights, its owner,
/// when it was changed, and what it holds. Two pictures are equal if nothing was touched.
std::map<std::string, std::string> diskPicture(const std::string& folder);

}  // namespace tidewell::test
