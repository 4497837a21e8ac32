#include "kit/count_text.h"

namespace tidewell {

std::string countText(std::int64_t count, std::string_view noun) {
    return std::to_string(count).append(" ").append(noun).append(count == 1 ? "" : "s");
}

}  // namespace tidewell
