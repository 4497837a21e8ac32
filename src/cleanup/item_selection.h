#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cleanup/cleanup_model.h"
#include "platform/sum.h"

namespace tidewell {

// Sums and ticks of measured items, as the Clean tool and Dev Mode both use them.

using CleanupItems = std::vector<CleanupItem>;

inline constexpr auto everyItem = [](const CleanupItem&) { return true; };
inline constexpr auto tickedItem = [](const CleanupItem& item) { return item.isSelected; };

/// The ticked items, in their order.
CleanupItems selectedItems(const CleanupItems& items);

/// The sizes of all items that `isMeant` names together.
template <class Predicate>
ByteCount totalBytes(const CleanupItems& items, Predicate isMeant) {
    return sumOf(items,
                 [&](const CleanupItem& item) { return isMeant(item) ? item.sizeBytes : 0; });
}

/// The sizes of all items together, ticked or not.
inline ByteCount totalBytes(const CleanupItems& items) {
    return totalBytes(items, everyItem);
}

enum class Tick { on, off };

inline Tick tickOf(bool isSelected) {
    return isSelected ? Tick::on : Tick::off;
}

/// Ticks or unticks each item that `isMeant` names, without asking what it is.
template <class Predicate>
void setTicks(CleanupItems& items, Tick tick, Predicate isMeant) {
    for (auto& item : items)
        if (isMeant(item)) item.isSelected = tick == Tick::on;
}

/// The same for many at once. What a running program works with is not ticked with the others: that
/// takes a tick of its own.
template <class Predicate>
void setTicksTogether(CleanupItems& items, Tick tick, Predicate isMeant) {
    setTicks(items, tick, [&isMeant, tick](const CleanupItem& item) {
        return isMeant(item) && (tick == Tick::off || !item.isInUse());
    });
}

/// Gives each item that `isMeant` names the tick that it had after the scan: safe ones alone, that
/// no running program works with.
template <class Predicate>
void tickSafeOnly(CleanupItems& items, Predicate isMeant) {
    for (auto& item : items)
        if (isMeant(item))
            item.isSelected = item.target.safety == SafetyLevel::safe && !item.isInUse();
}

/// The item of that target id; null if there is none.
const CleanupItem* findItem(const CleanupItems& items, std::string_view id);

/// Largest first; items of equal size keep their order.
void sortBySize(CleanupItems& items);

}  // namespace tidewell
