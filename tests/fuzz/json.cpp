#include "platform/json.h"

#include "fuzz_target.h"

void tidewell::test::readHostileInput(std::string_view bytes) {
    const auto value = parseJson(bytes);
    if (!value) return;
    const auto written = writeJson(*value, JsonLayout::indented);
    const auto again = parseJson(written);
    require(again && writeJson(*again, JsonLayout::indented) == written);
}
