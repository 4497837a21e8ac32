#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tidewell::trash {

/// The name in the Trash of the nth item that is called `name`: the second "a.txt" is "a 2.txt". At
/// most `limit` bytes, for which the part before the extension is shortened, never within a
/// character. An extension that leaves no room is shortened like the rest.
std::string trashName(std::string_view name, int number, std::size_t limit);

}  // namespace tidewell::trash
