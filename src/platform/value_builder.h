#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "platform/value.h"

namespace tidewell {

/// Builds a tree from the events of a parser, in document order. Once an event does not fit, the
/// builder has failed and ignores all that follows. What lies open is kept in a list and not on
/// the stack, and nothing is nested deeper than `depthLimit`. Of keys that stand twice in an
/// object, the last holds and the others are dropped.
class ValueBuilder {
 public:
    explicit ValueBuilder(std::size_t depthLimit) : depthLimit_(depthLimit) {}

    void beginList() { begin(Open::Kind::list); }
    void beginObject() { begin(Open::Kind::object); }
    void key(std::string name);
    void add(Value value);
    void endList() { end(Open::Kind::list); }
    void endObject() { end(Open::Kind::object); }
    void fail() { failed_ = true; }

    bool failed() const { return failed_; }
    /// Whether the next thing must be a key or the end of an object.
    bool wantsKey() const;
    /// The finished tree; absent if there is none or anything in it did not fit.
    std::optional<Value> take();

 private:
    struct Open {
        enum class Kind { list, object } kind;
        Value::List items = {};
        Value::Object members = {};
        std::optional<std::string> key = {};
    };

    void begin(Open::Kind kind);
    void end(Open::Kind kind);

    std::size_t depthLimit_;
    std::vector<Open> open_;
    std::optional<Value> root_;
    bool failed_ = false;
};

/// Drops every member whose key stands again further on.
void keepLastOfEachKey(Value::Object& members);

}  // namespace tidewell
