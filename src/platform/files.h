#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tidewell {

// Questions to the file system. Every one may be asked from any thread; none changes anything.
// Existence follows links; whatever lists does not follow a link in the last component of the path
// that it is given. Names are bytes, in no particular encoding.

using Date = std::chrono::sys_time<std::chrono::nanoseconds>;

/// What stands at a path, its link followed. A dangling link is missing; `untold` is what the
/// system does not tell of, such as the inside of a folder that may not be searched, and may well
/// be there.
enum class FileKind { missing, untold, folder, other };

FileKind fileKind(const std::string& path);
/// False for what is untold too: for callers that only look.
bool fileExists(const std::string& path);

/// The names directly inside a folder, in ascending byte order, without "." and "..". Absent if
/// the folder is missing, cannot be read to its end, is no folder or a link.
std::optional<std::vector<std::string>> folderNames(const std::string& path);

/// When the entry itself (not what a link points to) was last changed; absent if it cannot be read.
std::optional<Date> modificationDate(const std::string& path);

/// All bytes of a regular file, its link followed; absent if it is missing, unreadable, no regular
/// file (a FIFO is not waited for) or longer than `limit` bytes.
std::optional<std::string> readFile(const std::string& path, std::size_t limit);

/// Whether a regular file may be started as a program by this user; a link is followed.
bool isProgram(const std::string& path);

/// Whether the file can be opened for reading. Nothing is read. Never waits.
bool canOpenForReading(const std::string& path);

/// An extended attribute of the entry itself, of those that are the user's; absent for a link, and
/// if it cannot be read.
std::optional<std::string> extendedAttribute(const std::string& path, const std::string& name);

/// The real location of an entry: its parent with all links resolved, and its own name, which is
/// not resolved. Absent if the parent does not exist, or the path has no last component.
std::optional<std::string> realLocation(const std::string& path);

/// What the path leads to in the end, with all links resolved; absent if nothing stands there.
std::optional<std::string> resolvedPath(const std::string& path);

/// A relative path taken from the folder that the program was started in; an absolute one as it is.
std::string absolutePath(const std::string& path);

}  // namespace tidewell
