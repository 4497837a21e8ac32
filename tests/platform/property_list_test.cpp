#include "platform/property_list.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "platform/json.h"
#include "support/temporary_folder.h"

namespace tidewell::test {

namespace {

using namespace std::string_literals;

/// The list as JSON; "absent" if there is none.
std::string asJson(const std::optional<Value>& list) {
    return list ? writeJson(*list) : "absent";
}

std::string xml(std::string_view content) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
           "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n<plist version=\"1.0\">" +
           std::string(content) + "</plist>\n";
}

std::string fromXml(std::string_view content) {
    return asJson(parsePropertyList(xml(content)));
}

std::string repeated(std::string_view piece, std::size_t times) {
    std::string text;
    for (std::size_t i = 0; i < times; ++i) text += piece;
    return text;
}

std::string nestedArrays(std::size_t depth) {
    return repeated("<array>", depth) + repeated("</array>", depth);
}

std::string bigEndian(std::uint64_t value, std::size_t length) {
    std::string bytes(length, '\0');
    for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte, value >>= 8)
        *byte = static_cast<char>(value & 0xFF);
    return bytes;
}

/// What the end of a binary list says of it; sizes are in bytes.
struct Trailer {
    std::uint64_t offsetSize = 2;
    std::uint64_t referenceSize = 1;
    std::optional<std::uint64_t> objectCount = {};
    std::uint64_t topObject = 0;
    std::optional<std::uint64_t> tableOffset = {};
};

/// A binary list of objects given as their bytes, the first of which is the top one.
std::string binary(const std::vector<std::string>& objects, const Trailer& trailer = {}) {
    std::string list = "bplist00";
    std::string table;
    for (const auto& object : objects) {
        table += bigEndian(list.size(), trailer.offsetSize);
        list += object;
    }
    const auto tableOffset = list.size();
    return list + table + "\0\0\0\0\0\0"s + bigEndian(trailer.offsetSize, 1) +
           bigEndian(trailer.referenceSize, 1) +
           bigEndian(trailer.objectCount.value_or(objects.size()), 8) +
           bigEndian(trailer.topObject, 8) +
           bigEndian(trailer.tableOffset.value_or(tableOffset), 8);
}

std::string fromBinary(const std::vector<std::string>& objects, const Trailer& trailer = {}) {
    return asJson(parsePropertyList(binary(objects, trailer)));
}

std::string sampleBinaryList() {
    return binary({"\xD2\x01\x02\x03\x04"s, "\x54Name", "\x55Items", "\x63\0A\x00\xE9\x20\xAC"s,
                   "\xA5\x05\x06\x07\x08\x09"s, "\x11\x01\x00"s, "\x08",
                   "\x23\x3F\xF8\0\0\0\0\0\0"s, "\x33\0\0\0\0\0\0\0\0"s, "\x42zz"});
}

}  // namespace

TEST(PropertyList, XmlGivesEveryKindOfValue) {
    EXPECT_EQ(
        fromXml("<dict><key>b</key><string> a &amp; &#x20AC;<![CDATA[<b>]]></string>"
                "<key>a</key><array><true/><false></false><string/></array>"
                "<key>date</key><date>2026-01-02T03:04:05Z</date><key>data</key><data>AAA=</data>"
                "<!-- a remark --><key>d</key><dict/></dict>"),
        R"({"b":" a & €<b>","a":[true,false,""],"date":null,"data":null,"d":{}})");
    const std::pair<std::string_view, std::string_view> numbers[] = {
        {"<integer> -7 </integer>", "-7"},
        {"<integer>0x1F</integer>", "31"},
        {"<integer>9223372036854775807</integer>", "9223372036854775807"},
        {"<integer>-9223372036854775808</integer>", "-9223372036854775808"},
        {"<integer>9223372036854775808</integer>", "null"},
        {"<integer>99999999999999999999999</integer>", "null"},
        {"<real>1.5e3</real>", "1500.0"},
        {"<real>1e999</real>", "null"},
        {"<real>nan</real>", "null"},
    };
    for (const auto& [content, json] : numbers) EXPECT_EQ(fromXml(content), json) << content;
    EXPECT_EQ(asJson(parsePropertyList("<dict><key>a</key><true/></dict>")), R"({"a":true})");
    EXPECT_EQ(fromXml("<dict><key>a</key><true/><key>a</key><false/></dict>"), R"({"a":false})");
}

TEST(PropertyList, XmlIsReadInTheEncodingThatItsMarkNames) {
    std::string utf16 = "\xFF\xFE";
    for (const auto character : "<plist><string>a</string></plist>"s) utf16 += {character, '\0'};
    EXPECT_EQ(asJson(parsePropertyList(utf16)), "\"a\"");
    EXPECT_EQ(asJson(parsePropertyList("\xEF\xBB\xBF<plist><string>a</string></plist>")), "\"a\"");
}

TEST(PropertyList, DamagedXmlIsAbsent) {
    for (const std::string_view content :
         {"", "<dict>", "<dict></array>", "<dict><key>a</key></dict>", "<dict><true/></dict>",
          "<dict><key>a</key><key>b</key></dict>", "<array><key>a</key></array>", "<key>a</key>",
          "<true/><true/>", "<array>text</array>", "<string><b/></string>", "<other/>",
          "<plist><true/></plist>", "<integer/>", "<integer>1x</integer>", "<real></real>",
          "<string>&unknown;</string>", "<string>\xff</string>", "<string>a<string>"})
        EXPECT_EQ(fromXml(content), "absent") << content;
    for (const std::string_view whole : {"", "{ a = b; }", "bplist", "<html/>", "bplist00"})
        EXPECT_EQ(asJson(parsePropertyList(whole)), "absent") << whole;
    EXPECT_EQ(asJson(parsePropertyList(xml("<true/>") + "<plist/>")), "absent");
}

TEST(PropertyList, XmlThatDeclaresEntitiesIsAbsent) {
    std::string bomb = "<!DOCTYPE plist [<!ENTITY a0 \"ha\">";
    for (int i = 1; i <= 40; ++i) {
        const auto before = "&a" + std::to_string(i - 1) + ";";
        bomb += "<!ENTITY a" + std::to_string(i) + " \"" + before + before + "\">";
    }
    EXPECT_EQ(asJson(parsePropertyList(bomb + "]><plist><string>&a40;</string></plist>")),
              "absent");
    EXPECT_EQ(
        asJson(parsePropertyList("<!DOCTYPE plist [<!ENTITY f SYSTEM \"file:///etc/passwd\">]>"
                                 "<plist><string>&f;</string></plist>")),
        "absent");
}

TEST(PropertyList, NestingIsReadToItsLimitAndNoDeeper) {
    const auto deepest = propertyListDepthLimit;
    EXPECT_EQ(fromXml(nestedArrays(deepest)), repeated("[", deepest) + repeated("]", deepest));
    EXPECT_EQ(fromXml(nestedArrays(deepest + 1)), "absent");
    EXPECT_EQ(fromXml(nestedArrays(500'000)), "absent");

    const auto chain = [](std::size_t depth) {
        std::vector<std::string> objects;
        for (std::size_t i = 1; i < depth; ++i) objects.push_back("\xA1" + bigEndian(i, 2));
        objects.emplace_back("\xA0");
        return fromBinary(objects, {.referenceSize = 2});
    };
    EXPECT_EQ(chain(deepest), repeated("[", deepest) + repeated("]", deepest));
    EXPECT_EQ(chain(deepest + 1), "absent");
    EXPECT_EQ(chain(20'000), "absent");
}

TEST(PropertyList, BinaryGivesEveryKindOfValue) {
    EXPECT_EQ(asJson(parsePropertyList(sampleBinaryList())),
              R"({"Name":"Aé€","Items":[256,false,1.5,null,null]})");
    const std::pair<std::string, std::string_view> values[] = {
        {"\x00"s, "null"},
        {"\x09", "true"},
        {"\x10\xFF", "255"},
        {"\x12\xFF\xFF\xFF\xFF", "4294967295"},
        {"\x13\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFE", "-2"},
        {"\x14" + repeated("\xFF"s, 16), "-1"},
        {"\x14" + repeated("\0"s, 8) + repeated("\xFF"s, 8), "null"},
        {"\x22\x3F\xC0\0\0"s, "1.5"},
        {"\x81\0\x07"s, "null"},
        {"\x5F\x10\x0Fseventeen bytes", "\"seventeen bytes\""},
        {"\x62\xD8\x3D\xDE\x00"s, "\"😀\""},
        {"\x62\xD8\x3D\0A"s, "\"\uFFFDA\""},
    };
    for (const auto& [object, json] : values) EXPECT_EQ(fromBinary({object}), json);
    EXPECT_EQ(fromBinary({"\xD2\x01\x01\x02\x03"s,
                          "\x51"
                          "a",
                          "\x08", "\x09"}),
              R"({"a":true})");
}

TEST(PropertyList, DamagedBinaryIsAbsent) {
    const std::vector<std::string> objects[] = {
        {"\x01"},                        // no such simple value
        {"\x15" + repeated("\0"s, 32)},  // an integer of 32 bytes
        {"\x13\0\0"s},                   // cut short by the table
        {"\x23\0\0"s},
        {"\x33\0\0"s},
        {"\x45zz"},
        {"\x55zz"},
        {"\x62\0A"s},
        {"\x83\0"s},
        {"\xA2\x00"s},
        {"\xD2\x00\x00\x00"s},
        {"\x70"},  // no such type
        {"\x5F"},  // a count that does not follow
        {"\x5F\x51z"},
        {"\x5F\x13\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFFz"},
        {"\xAF\x13\x80\0\0\0\0\0\0\0\0"s},
        {"\xDF\x13\x7F\xFF\xFF\xFF\xFF\xFF\xFF\xFF\0"s},
        {"\xA1\x01"},                  // no such object
        {"\xD1\x01\x01", "\x10\x01"},  // a key that is no text
    };
    for (const auto& list : objects) EXPECT_EQ(fromBinary(list), "absent") << list.front();

    constexpr auto huge = std::numeric_limits<std::uint64_t>::max();
    for (const auto& trailer :
         {Trailer{.offsetSize = 0}, Trailer{.offsetSize = 9}, Trailer{.referenceSize = 0},
          Trailer{.referenceSize = 255}, Trailer{.objectCount = 0}, Trailer{.objectCount = huge},
          Trailer{.objectCount = 2}, Trailer{.topObject = 1}, Trailer{.topObject = huge},
          Trailer{.tableOffset = 0}, Trailer{.tableOffset = huge}, Trailer{.tableOffset = 12}})
        EXPECT_EQ(fromBinary({"\x09"}, trailer), "absent");
}

TEST(PropertyList, BinaryThatContainsItselfOrSharesWithoutMeasureIsAbsent) {
    EXPECT_EQ(fromBinary({"\xA1\x00"s}), "absent");
    EXPECT_EQ(fromBinary({"\xA2\x01\x01", "\xA2\x00\x00"s}), "absent");
    EXPECT_EQ(fromBinary({"\xD1\x01\x00"s, "\x51k"}), "absent");

    std::vector<std::string> doubling;
    for (char next = 1; next <= 60; ++next) doubling.push_back({'\xA2', next, next});
    doubling.emplace_back("\x09");
    EXPECT_EQ(fromBinary(doubling), "absent");

    const auto shared = "\xAF\x11\x27\x10" + repeated("\x01", 10'000);
    EXPECT_EQ(fromBinary({shared, "\x5F\x11\x27\x10" + repeated("x", 10'000)}), "absent");
    EXPECT_NE(fromBinary({shared, "\x54text"}), "absent");
}

TEST(PropertyList, OnlyARegularFileOfReasonableLengthIsRead) {
    const TemporaryFolder folder;
    const auto path = [&](const char* name) { return folder.path() + "/" + name; };
    std::ofstream(path("good")) << xml("<string>a</string>");
    std::ofstream(path("huge")) << xml("<string>a</string>");
    std::filesystem::resize_file(path("huge"), 1ULL << 30);
    ASSERT_EQ(::mkfifo(path("fifo").c_str(), 0600), 0);

    EXPECT_EQ(asJson(readPropertyList(path("good"))), "\"a\"");
    for (const auto* name : {"huge", "fifo", "missing", ""})
        EXPECT_EQ(asJson(readPropertyList(path(name))), "absent") << name;
    EXPECT_EQ(fromXml("<string>" + std::string(propertyListLimit, 'x') + "</string>"), "absent");
}

}  // namespace tidewell::test
