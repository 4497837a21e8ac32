#include "platform/icon_image.h"

#include "fuzz_target.h"

void tidewell::test::readHostileInput(std::string_view bytes) {
    for (const int side : {1, 64, 4096}) {
        const auto picture = pngOfIconFile(bytes, side);
        if (picture)
            require(picture->data() >= bytes.data() &&
                    picture->data() + picture->size() <= bytes.data() + bytes.size());
    }
}
