#pragma once

#include <compare>
#include <string_view>

namespace tidewell {

/// Order of two names as people expect it in a list: by the language's own rules, with letter case
/// left out of account. Ill-formed text is compared with U+FFFD in the place of each ill-formed
/// sequence. Any thread.
std::weak_ordering compareForPeople(std::string_view left, std::string_view right);

}  // namespace tidewell
