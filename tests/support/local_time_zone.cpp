#include "support/local_time_zone.h"

#include <unicode/timezone.h>

#include <stdexcept>

namespace tidewell::test {

struct LocalTimeZone::Previous {
    std::unique_ptr<icu::TimeZone> zone;
};

LocalTimeZone::LocalTimeZone(const std::string& name)
    : previous_(new Previous{std::unique_ptr<icu::TimeZone>(icu::TimeZone::createDefault())}) {
    std::unique_ptr<icu::TimeZone> zone(
        icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(name)));
    if (*zone == icu::TimeZone::getUnknown()) throw std::runtime_error("no time zone " + name);
    icu::TimeZone::adoptDefault(zone.release());
}

LocalTimeZone::~LocalTimeZone() {
    icu::TimeZone::adoptDefault(previous_->zone.release());
}

}  // namespace tidewell::test
