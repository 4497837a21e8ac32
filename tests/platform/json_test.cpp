#include "platform/json.h"

#include <gtest/gtest.h>

#include <limits>

namespace tidewell::test {

namespace {

/// The document as it is written again; "absent" if it is not JSON.
std::string rewritten(std::string_view bytes) {
    const auto value = parseJson(bytes);
    return value ? writeJson(*value) : "absent";
}

std::string nested(std::size_t depth, std::string_view open, std::string_view close) {
    std::string text;
    for (std::size_t i = 0; i < depth; ++i) text += open;
    text += '1';
    for (std::size_t i = 0; i < depth; ++i) text += close;
    return text;
}

}  // namespace

TEST(Json, ComesBackAsItWasWrittenWithItsKeysInOrder) {
    for (const std::string document : {
             R"({"z":1,"a":[true,false,null,-3,2.5,"x"],"m":{"":{}},"e":[]})",
             R"("a \"quoted\" \\ \u0001 \n é 😀")",
             R"([9223372036854775807,-9223372036854775808,1e+300])",
             "17",
         })
        EXPECT_EQ(rewritten(document), document);
}

TEST(Json, NumbersThatDoNotFitIn64BitsReadAsNullAndLoseNothingElse) {
    EXPECT_EQ(rewritten("[9223372036854775808,18446744073709551615,99999999999999999999]"),
              "[null,null,null]");
    EXPECT_EQ(rewritten("[-9223372036854775809]"), "[null]");
    EXPECT_EQ(rewritten(R"({"a":1e999,"b":-1e999,"1e999 \" 1e999":"-1e999","c":1.5,"d":1e-999})"),
              R"({"a":null,"b":null,"1e999 \" 1e999":"-1e999","c":1.5,"d":0.0})");
    EXPECT_EQ(rewritten(R"([1e999,"unfinished\)"), "absent");
}

TEST(Json, OfEqualKeysTheLastHoldsAndTheOthersAreGone) {
    EXPECT_EQ(rewritten(R"({"a":1,"b":2,"a":{"c":1,"c":2},"d":3,"a":4})"),
              R"({"b":2,"d":3,"a":4})");
}

TEST(Json, NestingIsReadTo512AndNoDeeper) {
    for (const auto& [open, close] : {std::pair("[", "]"), std::pair(R"({"k":)", "}")}) {
        EXPECT_EQ(rewritten(nested(512, open, close)), nested(512, open, close));
        EXPECT_EQ(rewritten(nested(513, open, close)), "absent");
        EXPECT_EQ(rewritten(nested(1'000'000, open, close)), "absent");
    }
    EXPECT_NE(rewritten("[" + nested(511, "[", "]") + "," + nested(511, "[", "]") + "]"), "absent");
}

TEST(Json, WhatIsNotJsonIsAbsent) {
    for (const std::string_view document :
         {"", " ", "{", "[1,]", "nul", "[1] x", "01", "'a'", "{1:2}", "\"\xff\"", R"("\ud800")",
          "\"a\nb\"", "NaN", "[1}"})
        EXPECT_EQ(rewritten(document), "absent") << document;
}

TEST(Json, WhatJsonCannotHoldIsReplacedWhenWritten) {
    const Value value(Value::List{"a\xff\xc3z", "\xed\xa0\x80",
                                  std::numeric_limits<double>::infinity(),
                                  std::numeric_limits<double>::quiet_NaN(), Value()});
    const auto written = writeJson(value);
    EXPECT_EQ(written.substr(0, written.find(',')), "[\"a\uFFFD\uFFFDz\"");
    EXPECT_TRUE(written.ends_with(",null,null,null]")) << written;
    EXPECT_TRUE(parseJson(written));
    EXPECT_EQ(writeJson(Value(Value::Object{{"\x80key", 1}})), "{\"\uFFFDkey\":1}");
}

TEST(Json, IndentedLayoutPutsOneThingToALine) {
    EXPECT_EQ(writeJson(*parseJson(R"({"a":[1,{"b":2}],"c":{},"d":[]})"), JsonLayout::indented),
              R"({
  "a": [
    1,
    {
      "b": 2
    }
  ],
  "c": {},
  "d": []
})");
}

}  // namespace tidewell::test
