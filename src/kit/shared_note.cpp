#include "kit/shared_note.h"

#include "kit/byte_text.h"

namespace tidewell {

namespace {

constexpr ByteCount partWorthTelling = 10;

}  // namespace

std::string sharedNote(ByteCount freed, ByteCount shared) {
    if (shared == 0 || shared < addSaturating(freed, shared) / partWorthTelling) return {};
    return " " + byteText(shared) + " more is shared with other files and would stay.";
}

}  // namespace tidewell
