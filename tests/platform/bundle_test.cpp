#include "platform/bundle.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>

#include "support/sample_machine.h"

namespace tidewell::test {

namespace {

std::string infoWithIdentifier(const std::string& element) {
    return "<plist><dict><key>CFBundleIdentifier</key>" + element + "</dict></plist>";
}

std::string littleEndian(std::int64_t value) {
    std::string bytes(8, '\0');
    for (auto& byte : bytes) {
        byte = static_cast<char>(value & 0xFF);
        value >>= 8;
    }
    return bytes;
}

}  // namespace

TEST(Bundle, IsReadFromTheFirstOfTheTwoPlaces) {
    const SampleMachine machine;
    machine.text("/A.app/Contents/Info.plist", infoWithIdentifier("<string>inner</string>"));
    machine.text("/A.app/Info.plist", infoWithIdentifier("<string>outer</string>"));
    machine.text("/B.app/Info.plist", infoWithIdentifier("<string>outer</string>"));
    machine.link("/C.app", machine.path("/A.app"));
    EXPECT_EQ(readBundle(machine.path("/A.app"))->identifier, "inner");
    EXPECT_EQ(readBundle(machine.path("/B.app"))->identifier, "outer");
    EXPECT_EQ(readBundle(machine.path("/C.app"))->identifier, "inner");
}

TEST(Bundle, WithoutAReadableDictionaryHasNoneAndTheSecondPlaceIsNotTried) {
    const SampleMachine machine;
    const auto second = infoWithIdentifier("<string>outer</string>");
    for (const auto* app : {"/Damaged.app", "/List.app", "/Pipe.app", "/Folder.app"})
        machine.text(std::string(app) + "/Info.plist", second);
    machine.text("/Damaged.app/Contents/Info.plist", second.substr(0, second.size() / 2));
    machine.text("/List.app/Contents/Info.plist", "<plist><array/></plist>");
    machine.folder("/Pipe.app/Contents");
    ASSERT_EQ(::mkfifo(machine.path("/Pipe.app/Contents/Info.plist").c_str(), 0600), 0);
    machine.folder("/Folder.app/Contents/Info.plist");
    machine.folder("/Bare.app");
    for (const auto* app : {"/Damaged.app", "/List.app", "/Pipe.app", "/Folder.app", "/Bare.app"}) {
        const auto bundle = readBundle(machine.path(app));
        ASSERT_TRUE(bundle) << app;
        EXPECT_TRUE(bundle->info.isNull()) << app;
        EXPECT_EQ(bundle->identifier, std::nullopt) << app;
    }
}

TEST(Bundle, AnIdentifierThatIsNoTextIsNone) {
    const SampleMachine machine;
    machine.text("/A.app/Info.plist", infoWithIdentifier("<integer>1</integer>"));
    const auto bundle = readBundle(machine.path("/A.app"));
    EXPECT_TRUE(bundle->info.object());
    EXPECT_EQ(bundle->identifier, std::nullopt);
}

TEST(Bundle, IsAbsentForWhatIsNoFolder) {
    const SampleMachine machine;
    machine.text("/File.app", "");
    machine.link("/Dangling.app", "/nowhere");
    for (const auto* path : {"/File.app", "/Dangling.app", "/Missing.app"})
        EXPECT_FALSE(readBundle(machine.path(path))) << path;
}

TEST(LastUsedDate, IsReadFromTheAttributeOfTheBundleItself) {
    const SampleMachine machine;
    machine.folder("/A.app");
    machine.link("/Link.app", machine.path("/A.app"));
    const auto app = machine.path("/A.app");
    const auto dateOf = [&](const std::string& attribute) {
        EXPECT_EQ(::setxattr(app.c_str(), "user.com.apple.lastuseddate#PS", attribute.data(),
                             attribute.size(), 0),
                  0);
        return lastUsedDate(app);
    };
    using std::chrono::nanoseconds;
    using std::chrono::seconds;
    EXPECT_FALSE(lastUsedDate(app));
    EXPECT_EQ(dateOf(littleEndian(1'700'000'000) + littleEndian(999'999'999)),
              Date(seconds(1'700'000'000) + nanoseconds(999'999'999)));
    EXPECT_FALSE(lastUsedDate(machine.path("/Link.app")));
    EXPECT_EQ(dateOf(littleEndian(-5) + littleEndian(0)), Date(seconds(-5)));
    constexpr auto farthest = std::numeric_limits<std::int64_t>::max();
    for (const auto& malformed :
         {std::string(), littleEndian(1), littleEndian(1) + littleEndian(0) + "x",
          littleEndian(1) + littleEndian(1'000'000'000), littleEndian(1) + littleEndian(-1),
          littleEndian(farthest) + littleEndian(0), littleEndian(-farthest) + littleEndian(0),
          littleEndian(9'223'372'036) + littleEndian(999'999'999)})
        EXPECT_FALSE(dateOf(malformed));
}

}  // namespace tidewell::test
