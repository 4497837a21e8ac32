#include "platform/value_builder.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace tidewell {

void ValueBuilder::key(std::string name) {
    if (failed_ || !wantsKey()) return fail();
    open_.back().key = std::move(name);
}

void ValueBuilder::add(Value value) {
    if (failed_ || wantsKey()) return fail();
    if (open_.empty()) {
        if (root_) return fail();
        root_ = std::move(value);
        return;
    }
    auto& open = open_.back();
    if (open.kind == Open::Kind::list)
        open.items.push_back(std::move(value));
    else
        open.members.emplace_back(*std::exchange(open.key, std::nullopt), std::move(value));
}

bool ValueBuilder::wantsKey() const {
    return !open_.empty() && open_.back().kind == Open::Kind::object && !open_.back().key;
}

std::optional<Value> ValueBuilder::take() {
    if (failed_ || !open_.empty()) return std::nullopt;
    return std::exchange(root_, std::nullopt);
}

void ValueBuilder::begin(Open::Kind kind) {
    const auto isSecondRoot = open_.empty() && root_;
    if (failed_ || wantsKey() || isSecondRoot || open_.size() == depthLimit_) return fail();
    open_.push_back({.kind = kind});
}

void ValueBuilder::end(Open::Kind kind) {
    if (failed_ || open_.empty() || open_.back().kind != kind || open_.back().key) return fail();
    auto closed = std::move(open_.back());
    open_.pop_back();
    if (kind == Open::Kind::list) return add(std::move(closed.items));
    keepLastOfEachKey(closed.members);
    add(std::move(closed.members));
}

void keepLastOfEachKey(Value::Object& members) {
    std::vector<std::size_t> byKey(members.size());
    std::iota(byKey.begin(), byKey.end(), std::size_t{0});
    std::ranges::sort(byKey, [&](std::size_t left, std::size_t right) {
        const auto order = members[left].first <=> members[right].first;
        return order == 0 ? left < right : order < 0;
    });
    std::vector<bool> isRepeated(members.size());
    auto anyRepeated = false;
    for (std::size_t i = 1; i < byKey.size(); ++i)
        if (members[byKey[i - 1]].first == members[byKey[i]].first)
            anyRepeated = isRepeated[byKey[i - 1]] = true;
    if (!anyRepeated) return;
    Value::Object kept;
    for (std::size_t place = 0; place < members.size(); ++place)
        if (!isRepeated[place]) kept.push_back(std::move(members[place]));
    members = std::move(kept);
}

}  // namespace tidewell
