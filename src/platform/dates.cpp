#include "platform/dates.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <string>

namespace tidewell {

namespace {

using std::chrono::days;
using std::chrono::floor;
using std::chrono::nanoseconds;
using std::chrono::seconds;
using std::chrono::sys_days;
using std::chrono::sys_seconds;

/// Takes fixed pieces from the front of a text; one that does not fit spoils all that follows.
class FixedText {
 public:
    explicit FixedText(std::string_view text) : rest_(text) {}

    bool isWhole() const { return fits_ && rest_.empty(); }
    bool next(char character) const { return rest_.starts_with(character); }

    void take(char character) {
        fits_ = fits_ && next(character);
        if (fits_) rest_.remove_prefix(1);
    }
    int takeNumber(std::size_t digits, int largest) {
        int number = 0;
        const auto piece = rest_.substr(0, digits);
        fits_ = fits_ && countOfDigits(piece) == digits;
        if (!fits_) return 0;
        std::from_chars(piece.data(), piece.data() + digits, number);
        fits_ = number <= largest;
        rest_.remove_prefix(digits);
        return number;
    }
    /// At least one digit behind the point; those beyond nanoseconds are dropped.
    nanoseconds takeFraction() {
        const auto digits = countOfDigits(rest_);
        fits_ = fits_ && digits > 0;
        if (!fits_) return {};
        auto nine = std::string(rest_.substr(0, std::min<std::size_t>(digits, 9)));
        nine.resize(9, '0');
        rest_.remove_prefix(digits);
        return nanoseconds(std::stol(nine));
    }
    /// "Z", "+hh:mm" or "-hh:mm".
    seconds takeOffset() {
        if (next('Z')) {
            take('Z');
            return {};
        }
        const int sign = next('-') ? -1 : 1;
        take(sign < 0 ? '-' : '+');
        const std::chrono::hours hours(takeNumber(2, 23));
        take(':');
        return sign * (hours + std::chrono::minutes(takeNumber(2, 59)));
    }

 private:
    static std::size_t countOfDigits(std::string_view text) {
        return std::min(text.find_first_not_of("0123456789"), text.size());
    }

    std::string_view rest_;
    bool fits_ = true;
};

/// Absent outside of what a date can hold, which is some 292 years around 1970.
std::optional<Date> dateAt(sys_seconds moment, nanoseconds fraction) {
    constexpr auto first = std::chrono::ceil<seconds>(Date::min());
    constexpr auto last = floor<seconds>(Date::max());
    if (moment < first || moment >= last) return std::nullopt;
    return Date(moment) + fraction;
}

}  // namespace

Date now() {
    return std::chrono::time_point_cast<nanoseconds>(std::chrono::system_clock::now());
}

std::string iso8601(Date date) {
    const auto moment = floor<seconds>(date);
    const auto day = floor<days>(moment);
    const std::chrono::year_month_day calendar(day);
    const std::chrono::hh_mm_ss time(moment - day);
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02u-%02uT%02d:%02d:%02dZ", int(calendar.year()),
                  unsigned(calendar.month()), unsigned(calendar.day()),
                  static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
                  static_cast<int>(time.seconds().count()));
    return text;
}

std::optional<Date> parseIso8601(std::string_view text, Fractions fractions) {
    FixedText rest(text);
    const std::chrono::year year(rest.takeNumber(4, 9999));
    rest.take('-');
    const std::chrono::month month(static_cast<unsigned>(rest.takeNumber(2, 12)));
    rest.take('-');
    const std::chrono::day day(static_cast<unsigned>(rest.takeNumber(2, 31)));
    rest.take('T');
    seconds time = std::chrono::hours(rest.takeNumber(2, 23));
    rest.take(':');
    time += std::chrono::minutes(rest.takeNumber(2, 59));
    rest.take(':');
    time += seconds(rest.takeNumber(2, 59));
    nanoseconds fraction{};
    if (fractions == Fractions::required) {
        rest.take('.');
        fraction = rest.takeFraction();
    }
    time -= rest.takeOffset();
    const auto date = year / month / day;
    if (!rest.isWhole() || !date.ok()) return std::nullopt;
    return dateAt(sys_days(date) + time, fraction);
}

}  // namespace tidewell
