#include "platform/trash/trash_info.h"

#include "fuzz_target.h"

void tidewell::test::readHostileInput(std::string_view bytes) {
    using namespace trash;
    require(percentDecoded(percentEncoded(bytes)) == bytes);
    const auto info = parseTrashInfo(bytes);
    if (!info) return;
    const auto again = parseTrashInfo(trashInfoText(*info));
    require(again && again->path == info->path);
}
