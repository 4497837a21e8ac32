#include "platform/text.h"

#include "fuzz_target.h"
#include "platform/collation.h"
#include "platform/path_text.h"

// Names of files: bytes that anybody may have chosen.
void tidewell::test::readHostileInput(std::string_view bytes) {
    const auto text = wellFormedText(bytes);
    require(wellFormedText(text) == text);
    const auto shown = terminalText(bytes);
    require(shown.find_first_of("\x1b\n\r\b\x07") == std::string::npos);
    require(displayWidth(text) >= 0);
    require(compareForPeople(bytes, text) == 0);
    const auto path = standardizedPath(bytes);
    require(standardizedPath(path) == path);
}
