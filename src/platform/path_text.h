#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tidewell {

// Paths are texts of bytes with "/" between the pieces. What stands here looks at the text alone
// and never at the disk; comparisons are exact and case-sensitive.

/// Without ".", ".." and doubled or trailing slashes. Links are not resolved. A ".." at the root of
/// an absolute path goes. The empty path stays empty.
std::string standardizedPath(std::string_view path);

/// The pieces between the slashes, empty ones left out.
std::vector<std::string_view> pathPieces(std::string_view path);

/// What stands behind the last slash; "/" and "" give "".
std::string_view lastPathComponent(std::string_view path);

/// What stands before the last slash, "/" for a path directly below the root, "" for a bare name.
std::string_view parentPath(std::string_view path);

/// `folder` + "/" + `name`, with one slash also behind the root.
std::string joinPath(std::string_view folder, std::string_view name);

/// Whether `path` lies below `folder`: it begins with `folder` and a slash.
bool isBelow(std::string_view path, std::string_view folder);

/// Whether `path` is `folder` or lies below it.
bool isAtOrBelow(std::string_view path, std::string_view folder);

/// `path` without `folder` and its slash; all of `path` if it does not lie below `folder`.
std::string_view pathRelativeTo(std::string_view path, std::string_view folder);

/// Where a name's extension begins, its dot included: the name's length if it has none. A name
/// that begins with its only dot has no extension.
std::size_t extensionPosition(std::string_view name);

/// The last component's extension without its dot, as written; "" if it has none.
std::string_view pathExtension(std::string_view path);

/// The last component without its extension.
std::string_view nameWithoutExtension(std::string_view path);

/// ASCII letters in lower case, all other bytes as they are.
std::string lowerCased(std::string_view text);

}  // namespace tidewell
