#include "platform/property_list.h"

#include "fuzz_target.h"
#include "platform/json.h"

void tidewell::test::readHostileInput(std::string_view bytes) {
    const auto value = parsePropertyList(bytes);
    if (value) require(parseJson(writeJson(*value)).has_value());
}
