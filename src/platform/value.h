#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace tidewell {

/// A tree of plain values, as JSON documents and property lists hold it. Objects keep the order of
/// their keys. A property list's dates and binary data, which nothing here asks for, are null.
class Value {
 public:
    using List = std::vector<Value>;
    using Object = std::vector<std::pair<std::string, Value>>;

    Value() = default;
    Value(bool boolean) : held_(boolean) {}
    Value(int integer) : held_(std::int64_t{integer}) {}
    Value(std::int64_t integer) : held_(integer) {}
    Value(double real) : held_(real) {}
    Value(const char* text) : held_(std::string(text)) {}
    Value(std::string_view text) : held_(std::string(text)) {}
    Value(std::string text) : held_(std::move(text)) {}
    Value(List list) : held_(std::move(list)) {}
    Value(Object object) : held_(std::move(object)) {}

    /// What is held, or null if it is of another type. A number counts as a boolean nowhere.
    const bool* boolean() const { return std::get_if<bool>(&held_); }
    const std::int64_t* integer() const { return std::get_if<std::int64_t>(&held_); }
    const double* real() const { return std::get_if<double>(&held_); }
    const std::string* text() const { return std::get_if<std::string>(&held_); }
    const List* list() const { return std::get_if<List>(&held_); }
    const Object* object() const { return std::get_if<Object>(&held_); }
    bool isNull() const { return std::holds_alternative<std::monostate>(held_); }

    /// The member of an object; null if this is no object or has no such key. Of keys that stand
    /// twice, the last holds.
    const Value* find(std::string_view key) const;
    /// The member if it is a text.
    std::optional<std::string> textAt(std::string_view key) const;

 private:
    std::variant<std::monostate, bool, std::int64_t, double, std::string, List, Object> held_;
};

}  // namespace tidewell
