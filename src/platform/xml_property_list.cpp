#include "platform/xml_property_list.h"

#include <expat.h>

#include <charconv>
#include <limits>
#include <locale>
#include <memory>
#include <sstream>

#include "platform/property_list.h"
#include "platform/value_builder.h"

namespace tidewell {

namespace {

constexpr std::string_view whitespace = " \t\r\n";

std::string_view trimmed(std::string_view text) {
    const auto begin = text.find_first_not_of(whitespace);
    if (begin == std::string_view::npos) return {};
    return text.substr(begin, text.find_last_not_of(whitespace) + 1 - begin);
}

enum class Element {
    plist,
    dictionary,
    array,
    key,
    string,
    integer,
    real,
    yes,
    no,
    date,
    data,
};

struct ElementName {
    std::string_view name;
    Element element;
};

constexpr ElementName elementNames[] = {
    {"plist", Element::plist}, {"dict", Element::dictionary}, {"array", Element::array},
    {"key", Element::key},     {"string", Element::string},   {"integer", Element::integer},
    {"real", Element::real},   {"true", Element::yes},        {"false", Element::no},
    {"date", Element::date},   {"data", Element::data},
};

std::optional<Element> elementNamed(std::string_view name) {
    for (const auto& [known, element] : elementNames)
        if (known == name) return element;
    return std::nullopt;
}

bool holdsElements(Element element) {
    return element == Element::plist || element == Element::dictionary || element == Element::array;
}

/// A decimal or, behind "0x", hexadecimal number with an optional sign; null beyond 64 bits.
std::optional<Value> integerValue(std::string_view text) {
    auto digits = trimmed(text);
    const auto isNegative = digits.starts_with('-');
    if (isNegative || digits.starts_with('+')) digits.remove_prefix(1);
    const auto isHexadecimal = digits.starts_with("0x") || digits.starts_with("0X");
    if (isHexadecimal) digits.remove_prefix(2);

    std::uint64_t magnitude = 0;
    const auto* const end = digits.data() + digits.size();
    const auto read = std::from_chars(digits.data(), end, magnitude, isHexadecimal ? 16 : 10);
    if (read.ptr != end || read.ec == std::errc::invalid_argument) return std::nullopt;

    constexpr std::uint64_t largest = std::numeric_limits<std::int64_t>::max();
    const auto isTooLarge = magnitude > largest + (isNegative ? 1 : 0);
    if (read.ec == std::errc::result_out_of_range || isTooLarge) return Value();
    return static_cast<std::int64_t>(isNegative ? 0 - magnitude : magnitude);
}

/// Null for a number beyond the range of a double, and for infinity and the like in words.
std::optional<Value> realValue(std::string_view text) {
    const auto number = trimmed(text);
    if (number.empty()) return std::nullopt;
    std::istringstream stream{std::string(number)};
    stream.imbue(std::locale::classic());
    double value = 0;
    return stream >> value && stream.eof() ? Value(value) : Value();
}

/// Takes the events of the XML parser. Anything that does not belong into a property list fails
/// the builder, which stops the parser.
class Reader {
 public:
    Reader() : parser_(::XML_ParserCreate(nullptr), ::XML_ParserFree) {
        const auto parser = parser_.get();
        if (!parser) return;
        ::XML_SetUserData(parser, this);
        ::XML_SetElementHandler(
            parser, [](void* self, const char* name, const char**) { of(self).startElement(name); },
            [](void* self, const char* name) { of(self).endElement(name); });
        ::XML_SetCharacterDataHandler(parser, [](void* self, const char* text, int length) {
            of(self).characters({text, static_cast<std::size_t>(length)});
        });
        ::XML_SetStartDoctypeDeclHandler(
            parser, [](void* self, const char*, const char*, const char*, int hasDeclarations) {
                if (hasDeclarations != 0) of(self).fail();
            });
        ::XML_SetSkippedEntityHandler(parser,
                                      [](void* self, const char*, int) { of(self).fail(); });
    }

    std::optional<Value> read(std::string_view bytes) {
        constexpr int isFinal = 1;
        const auto length = static_cast<int>(bytes.size());
        if (!parser_ || ::XML_Parse(parser_.get(), bytes.data(), length, isFinal) != XML_STATUS_OK)
            return std::nullopt;
        return builder_.take();
    }

 private:
    static Reader& of(void* self) { return *static_cast<Reader*>(self); }

    void fail() {
        builder_.fail();
        ::XML_StopParser(parser_.get(), XML_FALSE);
    }

    void startElement(std::string_view name) {
        const auto element = elementNamed(name);
        const auto isMisplaced = leaf_ || (element == Element::plist && level_ > 0) ||
                                 (builder_.wantsKey() != (element == Element::key));
        if (!element || isMisplaced) return fail();
        ++level_;
        if (*element == Element::dictionary) builder_.beginObject();
        if (*element == Element::array) builder_.beginList();
        if (!holdsElements(*element)) leaf_ = *element;
        if (builder_.failed()) fail();
    }

    /// The parser has seen to it that the name is that of the element begun last.
    void endElement(std::string_view name) {
        if (builder_.failed()) return;
        --level_;
        if (name == "dict") builder_.endObject();
        if (name == "array") builder_.endList();
        if (leaf_) endLeaf();
        if (builder_.failed()) fail();
    }

    void endLeaf() {
        if (*leaf_ == Element::key) {
            builder_.key(std::move(text_));
        } else if (auto value = leafValue()) {
            builder_.add(std::move(*value));
        } else {
            builder_.fail();
        }
        leaf_.reset();
        text_.clear();
    }

    /// Absent if the text is none of the element's type.
    std::optional<Value> leafValue() {
        switch (*leaf_) {
            case Element::string:
                return Value(std::move(text_));
            case Element::integer:
                return integerValue(text_);
            case Element::real:
                return realValue(text_);
            case Element::yes:
                return Value(true);
            case Element::no:
                return Value(false);
            case Element::date:
            case Element::data:
                return Value();
            case Element::plist:
            case Element::dictionary:
            case Element::array:
            case Element::key:
                break;
        }
        return std::nullopt;
    }

    void characters(std::string_view text) {
        if (leaf_)
            text_ += text;
        else if (!trimmed(text).empty())
            fail();
    }

    std::unique_ptr<XML_ParserStruct, void (*)(XML_Parser)> parser_;
    ValueBuilder builder_{propertyListDepthLimit};
    std::optional<Element> leaf_;
    std::string text_;
    std::size_t level_ = 0;
};

}  // namespace

std::optional<Value> parseXmlPropertyList(std::string_view bytes) {
    return Reader().read(bytes);
}

}  // namespace tidewell
