#include "kit/percent_text.h"

namespace tidewell {

int wholePercent(double fraction) {
    return static_cast<int>(fraction * 100);
}

std::string percentText(double fraction) {
    return std::to_string(wholePercent(fraction)) + "%";
}

}  // namespace tidewell
