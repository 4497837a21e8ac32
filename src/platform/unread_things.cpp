#include "platform/unread_things.h"

#include <algorithm>
#include <atomic>
#include <functional>

namespace tidewell {

namespace {

constexpr std::uint64_t unknownBit = 1;

std::uint64_t nextUnknown() {
    static std::atomic<std::uint64_t> last = 0;
    return ++last << 1 | unknownBit;
}

}  // namespace

void UnreadThings::add(std::uint64_t place, std::string_view name) {
    constexpr std::uint64_t spread = 0x9e3779b97f4a7c15;
    const auto thing = (place * spread) ^ std::hash<std::string_view>()(name);
    addThing(thing & ~unknownBit);
}

void UnreadThings::addUnknown() {
    addThing(nextUnknown());
}

void UnreadThings::add(const UnreadThings& others) {
    for (const auto thing : others.things_) addThing(thing);
    isOverfull_ = isOverfull_ || others.isOverfull_;
}

void UnreadThings::addThing(std::uint64_t thing) {
    const auto place = std::ranges::lower_bound(things_, thing);
    if (place != things_.end() && *place == thing) return;
    if (things_.size() + 1 < most) {
        things_.insert(place, thing);
    } else {
        things_ = {nextUnknown()};
        isOverfull_ = true;
    }
}

bool UnreadThings::areAmong(const UnreadThings& others) const {
    return std::ranges::includes(others.things_, things_);
}

}  // namespace tidewell
