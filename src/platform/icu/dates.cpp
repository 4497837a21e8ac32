#include "platform/dates.h"

#include <unicode/calendar.h>
#include <unicode/datefmt.h>
#include <unicode/reldatefmt.h>

#include <algorithm>
#include <array>
#include <memory>

#include "platform/icu/require.h"

namespace tidewell {

namespace {

using icu_support::require;
using std::chrono::milliseconds;

const icu::Locale& english() {
    return icu::Locale::getUS();
}

UDate icuDate(Date date) {
    const auto count = std::chrono::floor<milliseconds>(date).time_since_epoch().count();
    return static_cast<UDate>(count);
}

std::unique_ptr<icu::Calendar> calendarAt(UDate date) {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Calendar> calendar(icu::Calendar::createInstance(english(), status));
    require(status);
    calendar->setTime(date, status);
    require(status);
    return calendar;
}

int fieldDifference(UDate start, UDate end, UCalendarDateFields field) {
    const auto calendar = calendarAt(start);
    UErrorCode status = U_ZERO_ERROR;
    const auto count = calendar->fieldDifference(end, field, status);
    require(status);
    return count;
}

std::string bytes(const icu::UnicodeString& text) {
    std::string result;
    text.toUTF8String(result);
    return result;
}

struct RelativeUnit {
    UCalendarDateFields field;
    URelativeDateTimeUnit unit;
};

constexpr std::array relativeUnits{
    RelativeUnit{UCAL_YEAR, UDAT_REL_UNIT_YEAR},
    RelativeUnit{UCAL_MONTH, UDAT_REL_UNIT_MONTH},
    RelativeUnit{UCAL_WEEK_OF_YEAR, UDAT_REL_UNIT_WEEK},
    RelativeUnit{UCAL_DATE, UDAT_REL_UNIT_DAY},
    RelativeUnit{UCAL_HOUR, UDAT_REL_UNIT_HOUR},
    RelativeUnit{UCAL_MINUTE, UDAT_REL_UNIT_MINUTE},
};

/// Whole milliseconds from one moment to a later one. Nanoseconds would overflow over centuries,
/// and cutting each moment down by itself would make a second of a little less than one.
milliseconds wholeMilliseconds(Date earlier, Date later) {
    const auto start = std::chrono::floor<milliseconds>(earlier);
    const auto end = std::chrono::floor<milliseconds>(later);
    const bool lastIsPartial = later - end < earlier - start;
    return end - start - milliseconds(lastIsPartial ? 1 : 0);
}

/// How far away a moment is, in its largest unit: negative for the past, and for no distance at
/// all.
struct Distance {
    double count;
    URelativeDateTimeUnit unit;
};

Distance distance(Date date, Date relativeTo) {
    const auto [earlier, later] = std::minmax(date, relativeTo);
    const auto start = icuDate(earlier);
    const auto span = wholeMilliseconds(earlier, later);
    const auto end = start + static_cast<UDate>(span.count());
    const double sign = date > relativeTo && span.count() >= 1000 ? 1.0 : -1.0;
    for (const auto& unit : relativeUnits)
        if (const auto count = fieldDifference(start, end, unit.field); count > 0)
            return {.count = sign * count, .unit = unit.unit};
    return {.count = sign * static_cast<double>(span.count() / 1000), .unit = UDAT_REL_UNIT_SECOND};
}

icu::RelativeDateTimeFormatter relativeFormatter(UDisplayContext capitalization) {
    UErrorCode status = U_ZERO_ERROR;
    icu::RelativeDateTimeFormatter formatter(english(), nullptr, UDAT_STYLE_LONG, capitalization,
                                             status);
    require(status);
    return formatter;
}

/// "Today", "Yesterday", "Tomorrow"; absent for every other day.
std::optional<std::string> dayInWords(UDate date, UDate relativeTo) {
    UErrorCode status = U_ZERO_ERROR;
    const auto days = calendarAt(date)->get(UCAL_JULIAN_DAY, status) -
                      calendarAt(relativeTo)->get(UCAL_JULIAN_DAY, status);
    require(status);
    if (days < -1 || days > 1) return std::nullopt;
    icu::UnicodeString text;
    relativeFormatter(UDISPCTX_CAPITALIZATION_FOR_BEGINNING_OF_SENTENCE)
        .format(days, UDAT_REL_UNIT_DAY, text, status);
    require(status);
    return bytes(text);
}

std::string formatted(const std::unique_ptr<icu::DateFormat>& format, UDate date) {
    if (!format) require(U_MISSING_RESOURCE_ERROR);
    icu::UnicodeString text;
    format->format(date, text);
    // Newer data put a narrow space before "AM" and "PM" that many fonts lack.
    text.findAndReplace(icu::UnicodeString(u'\u202f'), icu::UnicodeString(u' '));
    return bytes(text);
}

/// By how much the local clock is ahead at a moment.
milliseconds localOffset(Date date) {
    const auto calendar = calendarAt(icuDate(date));
    UErrorCode status = U_ZERO_ERROR;
    const auto offset =
        calendar->get(UCAL_ZONE_OFFSET, status) + calendar->get(UCAL_DST_OFFSET, status);
    require(status);
    return milliseconds(offset);
}

}  // namespace

std::string localDateAndTime(Date date) {
    auto text = iso8601(date + localOffset(date));
    text.pop_back();  // the "Z"
    return text;
}

std::optional<Date> parseLocalDateAndTime(std::string_view text) {
    const auto shown = parseIso8601(std::string(text) + "Z", Fractions::absent);
    if (!shown) return std::nullopt;
    const auto nearby = *shown - localOffset(*shown);
    return *shown - localOffset(nearby);
}

std::int64_t wholeDaysBetween(Date start, Date end) {
    return fieldDifference(icuDate(start), icuDate(end), UCAL_DATE);
}

std::string relativeDate(Date date, Date relativeTo) {
    const auto away = distance(date, relativeTo);
    UErrorCode status = U_ZERO_ERROR;
    icu::UnicodeString text;
    relativeFormatter(UDISPCTX_CAPITALIZATION_NONE)
        .formatNumeric(away.count, away.unit, text, status);
    require(status);
    return bytes(text);
}

std::string relativeDateInWords(Date date, Date relativeTo) {
    const auto away = distance(date, relativeTo);
    UErrorCode status = U_ZERO_ERROR;
    icu::UnicodeString text;
    relativeFormatter(UDISPCTX_CAPITALIZATION_NONE).format(away.count, away.unit, text, status);
    require(status);
    return bytes(text);
}

std::string relativeDateAndTime(Date date, Date relativeTo) {
    using icu::DateFormat;
    const auto moment = icuDate(date);
    const std::unique_ptr<DateFormat> time(
        DateFormat::createTimeInstance(DateFormat::kShort, english()));
    const auto words = dayInWords(moment, icuDate(relativeTo));
    if (words) return *words + " at " + formatted(time, moment);
    const std::unique_ptr<DateFormat> day(
        DateFormat::createDateInstance(DateFormat::kMedium, english()));
    return formatted(day, moment) + " at " + formatted(time, moment);
}

}  // namespace tidewell
