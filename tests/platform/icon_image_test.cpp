#include "platform/icon_image.h"

#include <gtest/gtest.h>

#include "support/sample_machine.h"

namespace tidewell::test {
namespace {

const std::string png = "\x89PNG\r\n\x1a\n";

std::string entry(const std::string& mark, const std::string& content) {
    const auto length = content.size() + 8;
    return mark + std::string{0, 0, static_cast<char>(length >> 8), static_cast<char>(length)} +
           content;
}

std::string iconFile(const std::string& entries) {
    return entry("icns", entries);
}

TEST(IconImage, TakesTheSmallestPictureThatIsLargeEnoughElseTheLargest) {
    const auto file = iconFile(entry("ic10", png + "1024") + entry("TOC ", "contents") +
                               entry("ic07", png + "128") + entry("ic08", "jP  no PNG") +
                               entry("ic11", png + "32"));
    EXPECT_EQ(pngOfIconFile(file, 16), png + "32");
    EXPECT_EQ(pngOfIconFile(file, 32), png + "32");
    EXPECT_EQ(pngOfIconFile(file, 80), png + "128");
    EXPECT_EQ(pngOfIconFile(file, 256), png + "1024");
    EXPECT_EQ(pngOfIconFile(file, 4000), png + "1024");
}

TEST(IconImage, AFileThatIsCutShortGivesWhatStandsBeforeTheCut) {
    const auto file = iconFile(entry("ic07", png + "128") + entry("ic08", png + "256"));
    EXPECT_EQ(pngOfIconFile(file.substr(0, file.size() - 1), 256), png + "128");
    EXPECT_EQ(pngOfIconFile(file.substr(0, 26), 256), std::nullopt) << "inside the first picture";
    EXPECT_EQ(pngOfIconFile(iconFile(std::string("ic07\0\0\0\0", 8) + png), 64), std::nullopt)
        << "a picture of no length";
    EXPECT_EQ(pngOfIconFile(png + png, 64), std::nullopt);
    EXPECT_EQ(pngOfIconFile("icns", 64), std::nullopt);
}

TEST(IconImage, ABundlesIconIsTheOneThatItNamesInItsResources) {
    const SampleMachine machine;
    machine.application("/Applications/Named.app", {{"CFBundleIconFile", "Named"}});
    machine.text("/Applications/Named.app/Contents/Resources/Named.icns",
                 iconFile(entry("ic07", png + "icon")));
    EXPECT_EQ(bundleIcon(machine.path("/Applications/Named.app"), 64), png + "icon");

    machine.application("/Applications/Reaching.app",
                        {{"CFBundleIconFile", "../../../Named.app/Contents/Resources/Named"}});
    EXPECT_EQ(bundleIcon(machine.path("/Applications/Reaching.app"), 64), std::nullopt);
    machine.application("/Applications/Missing.app", {{"CFBundleIconFile", "Missing.icns"}});
    EXPECT_EQ(bundleIcon(machine.path("/Applications/Missing.app"), 64), std::nullopt);
    EXPECT_EQ(bundleIcon(machine.path("/Applications/Nowhere.app"), 64), std::nullopt);
}

}  // namespace
}  // namespace tidewell::test
