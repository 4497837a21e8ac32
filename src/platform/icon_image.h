#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tidewell {

/// The longest icon file that is read, in bytes: real ones are a tenth of it.
inline constexpr std::size_t iconFileLimit = 16 * 1024 * 1024;

/// The PNG picture of an .icns file that suits a square of `side` pixels: the smallest that is no
/// smaller, else the largest. Pictures of other encodings are passed over. Absent if there is none,
/// or the file is none or cut short before it. The bytes of the picture itself are not looked at,
/// but for their first eight. Any thread.
std::optional<std::string_view> pngOfIconFile(std::string_view bytes, int side);

/// The same for the icon that an application bundle names in its Info dictionary; absent also if it
/// names none, a file outside its Resources folder, or one that cannot be read. Blocks; any thread.
std::optional<std::string> bundleIcon(const std::string& bundle, int side);

}  // namespace tidewell
