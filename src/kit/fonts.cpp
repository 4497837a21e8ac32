#include "kit/fonts.h"

namespace tidewell {

FontFace fontFace(int weight, FontDesign design) {
    if (design == FontDesign::rounded) return {"Quicksand", weight};
    constexpr std::string_view family = "Inter";
    switch (weight) {
        case 100:
        case 200:
        case 300:
            return {family, 300};
        case 500:
        case 600:
        case 700:
            return {family, weight};
        case 800:
        case 900:
            return {family, 900};
    }
    return {family, 400};
}

}  // namespace tidewell
