#include "platform/json.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <locale>
#include <nlohmann/json.hpp>
#include <sstream>
#include <utility>

#include "platform/value_builder.h"

namespace tidewell {

namespace {

using nlohmann::json;

constexpr std::size_t depthLimit = 512;
constexpr std::size_t indentWidth = 2;

/// Receives what the parser finds. The parser stops at the first answer of false.
class JsonEvents {
 public:
    bool null() { return add({}); }
    bool boolean(bool value) { return add(value); }
    bool number_integer(std::int64_t value) { return add(value); }
    bool number_unsigned(std::uint64_t value) {
        const auto fits = std::in_range<std::int64_t>(value);
        return add(fits ? Value(static_cast<std::int64_t>(value)) : Value());
    }
    bool number_float(double value, const std::string& written) {
        const auto isWhole = written.find_first_of(".eE") == std::string::npos;
        return add(isWhole ? Value() : Value(value));
    }
    bool string(std::string& text) { return add(std::move(text)); }
    bool binary(json::binary_t&) { return false; }

    bool start_object(std::size_t) {
        builder_.beginObject();
        return !builder_.failed();
    }
    bool key(std::string& name) {
        builder_.key(std::move(name));
        return !builder_.failed();
    }
    bool end_object() {
        builder_.endObject();
        return !builder_.failed();
    }
    bool start_array(std::size_t) {
        builder_.beginList();
        return !builder_.failed();
    }
    bool end_array() {
        builder_.endList();
        return !builder_.failed();
    }
    bool parse_error(std::size_t, const std::string&, const json::exception& error) {
        constexpr int numberOverflow = 406;
        numberOverflowed_ = error.id == numberOverflow;
        return false;
    }

    bool numberOverflowed() const { return numberOverflowed_; }
    std::optional<Value> take() { return builder_.take(); }

 private:
    bool add(Value value) {
        builder_.add(std::move(value));
        return !builder_.failed();
    }

    ValueBuilder builder_{depthLimit};
    bool numberOverflowed_ = false;
};

std::size_t endOfString(std::string_view bytes, std::size_t openingQuote) {
    auto place = openingQuote + 1;
    while (place < bytes.size() && bytes[place] != '"') place += bytes[place] == '\\' ? 2 : 1;
    return std::min(place + 1, bytes.size());
}

bool overflows(std::string_view number) {
    std::istringstream stream{std::string(number)};
    stream.imbue(std::locale::classic());
    double value = 0;
    stream >> value;
    return std::abs(value) == std::numeric_limits<double>::max() || !std::isfinite(value);
}

/// The document with null in the place of each number beyond the range of a double. The parser
/// takes such a number for an error, and would lose the whole document for it.
std::string withoutOverflows(std::string_view bytes) {
    std::string result;
    for (std::size_t place = 0; place < bytes.size();) {
        constexpr std::string_view inNumbers = "+-.0123456789eE";
        const auto isNumber =
            std::string_view("-0123456789").find(bytes[place]) != std::string::npos;
        auto end = place + 1;
        if (bytes[place] == '"') end = endOfString(bytes, place);
        if (isNumber) end = std::min(bytes.find_first_not_of(inNumbers, place), bytes.size());
        const auto token = bytes.substr(place, end - place);
        result += isNumber && overflows(token) ? "null" : token;
        place = end;
    }
    return result;
}

void writeLineBreak(std::string& out, JsonLayout layout, std::size_t depth) {
    if (layout == JsonLayout::compact) return;
    out += '\n';
    out.append(depth * indentWidth, ' ');
}

template <class Plain>
void writePlain(std::string& out, const Plain& value) {
    out += json(value).dump(-1, ' ', false, json::error_handler_t::replace);
}

void write(std::string& out, const Value& value, JsonLayout layout, std::size_t depth);

template <class Elements, class WriteElement>
void writeElements(std::string& out, const Elements& elements, JsonLayout layout, std::size_t depth,
                   WriteElement writeElement) {
    for (const auto& element : elements) {
        if (&element != &elements.front()) out += ',';
        writeLineBreak(out, layout, depth + 1);
        writeElement(element);
    }
    if (!elements.empty()) writeLineBreak(out, layout, depth);
}

void writeList(std::string& out, const Value::List& list, JsonLayout layout, std::size_t depth) {
    out += '[';
    writeElements(out, list, layout, depth,
                  [&](const Value& item) { write(out, item, layout, depth + 1); });
    out += ']';
}

void writeObject(std::string& out, const Value::Object& object, JsonLayout layout,
                 std::size_t depth) {
    out += '{';
    writeElements(out, object, layout, depth, [&](const auto& member) {
        writePlain(out, member.first);
        out += layout == JsonLayout::compact ? ":" : ": ";
        write(out, member.second, layout, depth + 1);
    });
    out += '}';
}

void write(std::string& out, const Value& value, JsonLayout layout, std::size_t depth) {
    if (const auto* list = value.list()) return writeList(out, *list, layout, depth);
    if (const auto* object = value.object()) return writeObject(out, *object, layout, depth);
    if (const auto* text = value.text()) return writePlain(out, *text);
    if (const auto* integer = value.integer()) return writePlain(out, *integer);
    if (const auto* real = value.real()) return writePlain(out, *real);
    if (const auto* boolean = value.boolean()) return writePlain(out, *boolean);
    out += "null";
}

}  // namespace

std::optional<Value> parseJson(std::string_view bytes) {
    JsonEvents events;
    if (json::sax_parse(bytes.begin(), bytes.end(), &events)) return events.take();
    if (!events.numberOverflowed()) return std::nullopt;
    const auto mended = withoutOverflows(bytes);
    JsonEvents mendedEvents;
    if (json::sax_parse(mended, &mendedEvents)) return mendedEvents.take();
    return std::nullopt;
}

std::string writeJson(const Value& value, JsonLayout layout) {
    std::string out;
    write(out, value, layout, 0);
    return out;
}

}  // namespace tidewell
