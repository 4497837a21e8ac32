#include "platform/posix/size_tree.h"

#include <algorithm>
#include <queue>
#include <utility>

namespace tidewell::posix {

namespace {

/// With one entry for the smaller ones of each they are twice as many at most.
constexpr std::size_t mostTold = 10'000;

}  // namespace

void SizeTree::grow(ByteCount bytes) {
    const auto met = met_.fetch_add(bytes, std::memory_order_relaxed) + bytes;
    if (progress_) progress_(met);
}

void SizeTree::add(Place& list, Entry entry) {
    const std::lock_guard lock(mutex_);
    prune(entry.children);
    list = put(std::move(entry), list);
}

void SizeTree::drop(Place list) {
    if (list == none) return;
    const std::lock_guard lock(mutex_);
    dropLocked(list);
}

SizeTree::Place SizeTree::put(Entry entry, Place next) {
    if (free_.empty()) {
        entries_.push_back({std::move(entry), next});
        return static_cast<Place>(entries_.size() - 1);
    }
    const auto place = free_.back();
    free_.pop_back();
    entries_[place] = {std::move(entry), next};
    return place;
}

void SizeTree::prune(Place& list) {
    for (auto* at = &list; *at != none;) {
        auto& entry = entries_[*at];
        if (isWorthKeeping(entry.bytes)) {
            at = &entry.next;
        } else {
            const auto place = std::exchange(*at, entry.next);
            entries_[place].next = none;
            dropLocked(place);
        }
    }
}

// A loop and no recursion: the tree may be deeper than a stack.
void SizeTree::dropLocked(Place list) {
    std::vector<Place> lists = {list};
    while (!lists.empty()) {
        auto at = lists.back();
        lists.pop_back();
        while (at != none) {
            const auto entry = std::exchange(entries_[at], {});
            if (entry.children != none) lists.push_back(entry.children);
            free_.push_back(at);
            at = entry.next;
        }
    }
}

template <class Visit>
void SizeTree::forEachIn(Place list, const Visit& visit) const {
    for (auto at = list; at != none; at = entries_[at].next) visit(at);
}

/// Those that have the share of the top that is told, the largest if there are too many. Marks
/// them by their place; what lies above one is among them.
std::vector<SizeTree::Place> SizeTree::largest(Place top) const {
    struct Met {
        Place place;
        std::size_t order;  ///< a folder comes before what lies in it
    };
    const auto isAfter = [this](const Met& one, const Met& other) {
        const auto bytes = entries_[one.place].bytes;
        const auto otherBytes = entries_[other.place].bytes;
        return bytes != otherBytes ? bytes < otherBytes : one.order > other.order;
    };
    const auto least = (entries_[top].bytes + parts - 1) / parts;
    std::priority_queue<Met, std::vector<Met>, decltype(isAfter)> met(isAfter);
    std::vector<Place> taken;
    std::size_t order = 0;
    for (met.push({top, order++}); !met.empty() && taken.size() < mostTold;) {
        const auto [place, _] = met.top();
        met.pop();
        taken.push_back(place);
        std::vector<Place> children;
        forEachIn(entries_[place].children, [&](Place child) {
            if (entries_[child].bytes >= std::max<ByteCount>(1, least)) children.push_back(child);
        });
        std::ranges::sort(children, {}, [this](Place child) { return entries_[child].name; });
        for (const auto child : children) met.push({child, order++});
    }
    return taken;
}

/// Writes the list level by level: `places` are those of the entries told, none for smaller ones.
class SizeTree::Telling {
 public:
    Telling(const SizeTree& tree, Place top) : tree_(tree), isTold_(tree.entries_.size()) {
        for (const auto place : tree.largest(top)) isTold_[place] = true;
        tell(top, 0);
        for (std::uint32_t at = 0; at < told_.size(); ++at)
            if (told_[at].type == SizedEntry::Type::folder) tellChildren(at);
    }

    FolderSizes told() && { return std::move(told_); }

 private:
    void tell(Place place, std::uint32_t parent) {
        const auto& entry = tree_.entries_[place];
        told_.push_back({.name = entry.name,
                         .type = entry.type,
                         .bytes = entry.bytes,
                         .isUnread = entry.isUnread,
                         .parent = parent});
        places_.push_back(place);
    }

    void tellChildren(std::uint32_t at) {
        const auto& folder = tree_.entries_[places_[at]];
        const auto children = childrenOf(folder);
        told_[at].firstChild = static_cast<std::uint32_t>(told_.size());
        auto rest = folder.bytes;
        for (const auto child : children) {
            rest -= tree_.entries_[child].bytes;
            tell(child, at);
        }
        if (rest > 0) tellRest(at, rest, folder.things - children.size());
        told_[at].childCount = static_cast<std::uint32_t>(told_.size()) - told_[at].firstChild;
    }

    void tellRest(std::uint32_t parent, ByteCount bytes, std::uint64_t count) {
        told_.push_back({.name = {},
                         .type = SizedEntry::Type::smallerEntries,
                         .bytes = bytes,
                         .count = count,
                         .parent = parent});
        places_.push_back(none);
    }

    /// Largest first, and by name among equals.
    std::vector<Place> childrenOf(const Entry& folder) const {
        std::vector<Place> children;
        tree_.forEachIn(folder.children, [&](Place child) {
            if (isTold_[child]) children.push_back(child);
        });
        std::ranges::sort(children, [this](Place one, Place other) {
            const auto& left = tree_.entries_[one];
            const auto& right = tree_.entries_[other];
            return left.bytes != right.bytes ? left.bytes > right.bytes : left.name < right.name;
        });
        return children;
    }

    const SizeTree& tree_;
    std::vector<bool> isTold_;
    FolderSizes told_;
    std::vector<Place> places_;
};

FolderSizes SizeTree::told(Place top) const {
    return top == none ? FolderSizes() : Telling(*this, top).told();
}

}  // namespace tidewell::posix
