#include "platform/value.h"

namespace tidewell {

const Value* Value::find(std::string_view key) const {
    const auto* members = object();
    if (!members) return nullptr;
    for (auto member = members->rbegin(); member != members->rend(); ++member)
        if (member->first == key) return &member->second;
    return nullptr;
}

std::optional<std::string> Value::textAt(std::string_view key) const {
    const auto* member = find(key);
    const auto* text = member ? member->text() : nullptr;
    return text ? std::optional(*text) : std::nullopt;
}

}  // namespace tidewell
