#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace tidewell {

// Dates as people read them: in English, by the calendar of the local time zone. Any thread.

Date now();

/// Whole days from one moment to another by the calendar; negative if `end` is the earlier.
std::int64_t wholeDaysBetween(Date start, Date end);

/// "3 months ago", "in 2 days", "0 seconds ago": the largest unit whose whole count is not 0.
std::string relativeDate(Date date, Date relativeTo);

/// The same in words where there are some: "yesterday", "last month", "now".
std::string relativeDateInWords(Date date, Date relativeTo);

/// "Today at 3:04 PM", "Nov 3, 2026 at 9:00 AM".
std::string relativeDateAndTime(Date date, Date relativeTo);

/// "2026-11-03T09:00:00Z", without fractions.
std::string iso8601(Date date);

/// An internet date and time; `fractions` says whether fractional seconds must stand in it.
/// Absent for any other text.
enum class Fractions { absent, required };
std::optional<Date> parseIso8601(std::string_view text, Fractions fractions);

/// "2026-11-03T10:00:00" by the local clock, and such a text read; absent for any other. An hour
/// that comes twice when the clock is put back is read as one of the two.
std::string localDateAndTime(Date date);
std::optional<Date> parseLocalDateAndTime(std::string_view text);

}  // namespace tidewell
