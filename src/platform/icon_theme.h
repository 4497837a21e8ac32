#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/host.h"

namespace tidewell {

/// The longest picture of an icon theme that is read, in bytes.
inline constexpr std::size_t themeIconLimit = 2 * 1024 * 1024;

/// The folders that hold icon themes, the user's first.
std::vector<std::string> iconFolders(const Host& host);

/// The picture of an icon as a desktop entry names it: an absolute path on that machine, or a name
/// that is looked up in the theme that every program's icon must be in, and then among the pictures
/// that have no theme. The one that suits a square of about 100 pixels. PNG and SVG alone. Absent
/// for none, and for one that really lies outside the machine. Blocks; any thread.
std::optional<std::string> iconFile(const Host& host, std::string_view icon,
                                    const std::vector<std::string>& folders);

/// All pictures of a name in one folder of themes, whatever their size. Blocks; any thread.
std::vector<std::string> iconFilesIn(const std::string& folder, std::string_view name);

}  // namespace tidewell
