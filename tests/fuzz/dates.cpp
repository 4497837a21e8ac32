#include "platform/dates.h"

#include "fuzz_target.h"

void tidewell::test::readHostileInput(std::string_view bytes) {
    for (const auto fractions : {Fractions::absent, Fractions::required}) {
        const auto date = parseIso8601(bytes, fractions);
        if (!date) continue;
        const auto again = parseIso8601(iso8601(*date), Fractions::absent);
        require(again == std::chrono::floor<std::chrono::seconds>(*date));
    }
}
