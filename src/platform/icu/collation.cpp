#include "platform/collation.h"

#include <unicode/coll.h>

#include <memory>

#include "platform/icu/require.h"

namespace tidewell {

namespace {

std::unique_ptr<const icu::Collator> makeCollator() {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Collator> collator(
        icu::Collator::createInstance(icu::Locale::getUS(), status));
    icu_support::require(status);
    collator->setStrength(icu::Collator::SECONDARY);
    return collator;
}

}  // namespace

std::weak_ordering compareForPeople(std::string_view left, std::string_view right) {
    static const auto collator = makeCollator();  // comparing changes nothing in it
    UErrorCode status = U_ZERO_ERROR;
    const auto order = collator->compareUTF8(left, right, status);
    icu_support::require(status);
    return order <=> 0;
}

}  // namespace tidewell
