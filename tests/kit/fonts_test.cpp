#include <gtest/gtest.h>

#include "kit/fonts.h"

namespace tidewell {
namespace {

TEST(Fonts, HaveSixFacesInTheStandardDesign) {
    const struct {
        int weight;
        int face;
    } rows[] = {{100, 300}, {200, 300}, {300, 300}, {400, 400}, {500, 500}, {600, 600},
                {700, 700}, {800, 900}, {900, 900}, {450, 400}, {0, 400}};
    for (const auto& row : rows)
        EXPECT_EQ(fontFace(row.weight, FontDesign::standard), (FontFace{"Inter", row.face}));
    EXPECT_EQ(fontFace(800, FontDesign::rounded), (FontFace{"Quicksand", 800}));
}

}  // namespace
}  // namespace tidewell
