#include "platform/dates.h"

#include <gtest/gtest.h>

#include "support/local_time_zone.h"

namespace tidewell {
namespace {

using test::LocalTimeZone;

Date at(const char* text) {
    return parseIso8601(text, Fractions::absent).value();
}

TEST(Dates, ReadInternetDatesWithAnOffsetAndNothingElse) {
    using std::chrono::nanoseconds;
    using std::chrono::seconds;
    EXPECT_EQ(at("1970-01-01T00:00:00Z"), Date(seconds(0)));
    EXPECT_EQ(at("2026-03-01T00:30:00+05:30"), Date(seconds(1'772'305'200)));
    EXPECT_EQ(at("2026-02-28T14:00:00-05:00"), Date(seconds(1'772'305'200)));
    EXPECT_EQ(at("2024-02-29T23:59:59Z"), Date(seconds(1'709'251'199)));

    const struct {
        const char* text;
        nanoseconds sinceEpoch;
    } fractional[] = {{"1970-01-01T00:00:01.5Z", nanoseconds(1'500'000'000)},
                      {"1970-01-01T00:00:00.123456789Z", nanoseconds(123'456'789)},
                      {"1969-12-31T23:59:59.9999999999Z", nanoseconds(-1)}};
    for (const auto& row : fractional)
        EXPECT_EQ(parseIso8601(row.text, Fractions::required), Date(row.sinceEpoch)) << row.text;

    for (const auto* text :
         {"", "2026-02-29T00:00:00Z", "2026-13-01T00:00:00Z", "2026-00-01T00:00:00Z",
          "2026-01-00T00:00:00Z", "2026-01-01T24:00:00Z", "2026-01-01T00:60:00Z",
          "2026-01-01T00:00:60Z", "2026-01-01 00:00:00Z", "2026-01-01T00:00:00",
          "2026-01-01T00:00:00+0100", "2026-01-01T00:00:00Z ", "26-01-01T00:00:00Z",
          "2026-1-01T00:00:00Z", "+026-01-01T00:00:00Z", "2026-01-01T00:00:00.5Z",
          "0001-01-01T00:00:00Z", "9999-12-31T23:59:59Z", "2262-04-11T23:47:16Z"})
        EXPECT_EQ(parseIso8601(text, Fractions::absent), std::nullopt) << text;
    for (const auto* text : {"2026-01-01T00:00:00Z", "2026-01-01T00:00:00.Z"})
        EXPECT_EQ(parseIso8601(text, Fractions::required), std::nullopt) << text;
}

TEST(Dates, AreWrittenInUtcWithoutFractionsAlsoBefore1970) {
    const LocalTimeZone kolkata("Asia/Kolkata");
    for (const auto* text :
         {"2026-11-03T09:00:00Z", "1969-12-31T23:59:59Z", "1678-01-01T00:00:00Z"})
        EXPECT_EQ(iso8601(at(text)), text);
    EXPECT_EQ(iso8601(at("2026-11-03T09:00:00Z") + std::chrono::nanoseconds(999'999'999)),
              "2026-11-03T09:00:00Z");
    EXPECT_EQ(iso8601(Date(std::chrono::nanoseconds(-1))), "1969-12-31T23:59:59Z");
}

TEST(Dates, CountWholeDaysByTheLocalCalendar) {
    struct Row {
        const char* start;
        const char* end;
        std::int64_t days;
    };
    {
        const LocalTimeZone newYork("America/New_York");
        const Row rows[] = {
            // The night of 8 March is an hour short, the one of 1 November an hour long.
            {"2026-03-07T12:00:00-05:00", "2026-03-08T12:00:00-04:00", 1},
            {"2026-03-07T12:00:00-05:00", "2026-03-08T11:59:59-04:00", 0},
            {"2026-10-31T12:00:00-04:00", "2026-11-01T11:59:59-05:00", 0},
            {"2026-10-31T12:00:00-04:00", "2026-11-01T12:00:00-05:00", 1},
            {"2026-11-01T12:00:00-05:00", "2026-10-31T12:00:00-04:00", -1},
            {"2026-01-01T00:00:00-05:00", "2026-01-01T23:59:59-05:00", 0},
            {"1970-01-01T00:00:00Z", "2026-01-01T00:00:00Z", 20'454},
        };
        for (const auto& row : rows)
            EXPECT_EQ(wholeDaysBetween(at(row.start), at(row.end)), row.days) << row.start;
    }
    const LocalTimeZone kolkata("Asia/Kolkata");
    EXPECT_EQ(wholeDaysBetween(at("2026-03-07T12:00:00-05:00"), at("2026-03-08T12:00:00-04:00")),
              0);
}

TEST(RelativeDates, UseTheLargestUnitThatIsNotZero) {
    const LocalTimeZone newYork("America/New_York");
    const auto* noon = "2026-03-08T12:00:00-04:00";
    const struct {
        const char* date;
        const char* relativeTo;
        const char* numeric;
        const char* inWords;
    } rows[] = {
        {noon, noon, "0 seconds ago", "now"},
        {"2026-03-08T11:59:59-04:00", noon, "1 second ago", "1 second ago"},
        {"2026-03-08T12:00:59-04:00", noon, "in 59 seconds", "in 59 seconds"},
        {"2026-03-08T11:00:01-04:00", noon, "59 minutes ago", "59 minutes ago"},
        {"2026-03-08T11:00:00-04:00", noon, "1 hour ago", "1 hour ago"},
        // 23 hours have passed and yet it is a day by the calendar.
        {"2026-03-07T12:00:00-05:00", noon, "1 day ago", "yesterday"},
        {"2026-03-07T12:00:01-05:00", noon, "22 hours ago", "22 hours ago"},
        {"2026-03-09T12:00:00-04:00", noon, "in 1 day", "tomorrow"},
        {"2026-03-02T12:00:00-05:00", noon, "6 days ago", "6 days ago"},
        {"2026-03-01T12:00:00-05:00", noon, "1 week ago", "last week"},
        {"2026-02-08T12:00:01-05:00", noon, "3 weeks ago", "3 weeks ago"},
        {"2026-02-08T12:00:00-05:00", noon, "1 month ago", "last month"},
        {"2026-01-31T12:00:00-05:00", "2026-02-28T12:00:00-05:00", "1 month ago", "last month"},
        {"2026-02-28T12:00:00-05:00", "2026-01-31T12:00:00-05:00", "in 1 month", "next month"},
        {"2025-03-08T12:00:01-05:00", noon, "11 months ago", "11 months ago"},
        {"2025-03-08T12:00:00-05:00", noon, "1 year ago", "last year"},
        {"2029-03-08T12:00:00-05:00", noon, "in 3 years", "in 3 years"},
        {"1700-06-01T00:00:00Z", "2262-01-01T00:00:00Z", "561 years ago", "561 years ago"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(relativeDate(at(row.date), at(row.relativeTo)), row.numeric) << row.date;
        EXPECT_EQ(relativeDateInWords(at(row.date), at(row.relativeTo)), row.inWords) << row.date;
    }
}

TEST(RelativeDates, CountLessThanASecondAsNoneAcrossTheTickOfASecond) {
    const auto later = at("2026-03-08T12:00:01Z") + std::chrono::microseconds(100);
    const auto earlier = at("2026-03-08T12:00:00Z") + std::chrono::microseconds(900);
    EXPECT_EQ(relativeDate(earlier, later), "0 seconds ago");
    EXPECT_EQ(relativeDate(later, earlier), "0 seconds ago");
    EXPECT_EQ(relativeDateInWords(later, earlier), "now");
}

TEST(RelativeDates, NameTheDayByTheLocalCalendarAndTheClock) {
    const auto now = at("2026-11-03T23:30:00-05:00");
    const struct {
        const char* date;
        const char* inNewYork;
        const char* inKolkata;
    } rows[] = {
        {"2026-11-03T15:04:59-05:00", "Today at 3:04 PM", "Today at 1:34 AM"},
        {"2026-11-03T09:00:00-05:00", "Today at 9:00 AM", "Yesterday at 7:30 PM"},
        {"2026-11-02T00:00:00-05:00", "Yesterday at 12:00 AM", "Nov 2, 2026 at 10:30 AM"},
        {"2026-11-04T00:00:00-05:00", "Tomorrow at 12:00 AM", "Today at 10:30 AM"},
        {"2026-11-01T01:30:00-04:00", "Nov 1, 2026 at 1:30 AM", "Nov 1, 2026 at 11:00 AM"},
        {"2026-11-01T01:30:00-05:00", "Nov 1, 2026 at 1:30 AM", "Nov 1, 2026 at 12:00 PM"},
    };
    for (const auto& row : rows) {
        const LocalTimeZone newYork("America/New_York");
        EXPECT_EQ(relativeDateAndTime(at(row.date), now), row.inNewYork);
        const LocalTimeZone kolkata("Asia/Kolkata");
        EXPECT_EQ(relativeDateAndTime(at(row.date), now), row.inKolkata);
    }
}

}  // namespace
}  // namespace tidewell
