#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace tidewell::trash {

/// What a Trash of the desktop keeps about an entry, in a small file of its own.
struct TrashInfo {
    /// Where the entry came from, in bytes: absolute, or relative to the top of the volume.
    std::string path;
    std::optional<Date> deletedAt;

    bool operator==(const TrashInfo&) const = default;
};

/// What a file says whose name ends like this, with the entry's name before it.
inline constexpr std::string_view trashInfoExtension = ".trashinfo";

/// The file's whole text. Dates are told by the local clock, without fractions of a second.
std::string trashInfoText(const TrashInfo& info);

/// Absent for a text that is no such file, or whose path is missing, empty, badly encoded or holds
/// a zero byte or a piece "..". Of a line that comes twice the first counts, and a date that cannot
/// be read is none.
std::optional<TrashInfo> parseTrashInfo(std::string_view text);

/// Bytes as they stand in these files: all but letters, digits, "-._~" and "/" as "%" and two hex
/// digits.
std::string percentEncoded(std::string_view bytes);
/// Absent where a "%" stands without two hex digits.
std::optional<std::string> percentDecoded(std::string_view text);

}  // namespace tidewell::trash
