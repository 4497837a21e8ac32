#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cleanup/cleanup_model.h"

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
    ByteCount total = 0;
    for (const auto& item : items)
        if (isMeant(item)) total = addSaturating(total, item.sizeBytes);
    return total;
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

/// Gives each item that `isMeant` names the tick that it had after the scan: safe ones alone.
template <class Predicate>
void tickSafeOnly(CleanupItems& items, Predicate isMeant) {
    for (auto& item : items)
        if (isMeant(item)) item.isSelected = item.target.safety == SafetyLevel::safe;
}

/// The item of that target id; null if there is none.
const CleanupItem* findItem(const CleanupItems& items, std::string_view id);

/// One row's tick, looked up by its target's id at each access: off, and without effect, once the
/// item or the view model is gone.
template <class ViewModel>
class TickBinding {
 public:
    TickBinding(std::weak_ptr<ViewModel> model, std::string id)
        : model_(std::move(model)), id_(std::move(id)) {}

    bool get() const {
        const auto model = model_.lock();
        const auto* item = model ? findItem(model->items(), id_) : nullptr;
        return item && item->isSelected;
    }
    void set(Tick tick) const {
        const auto model = model_.lock();
        if (!model || !findItem(model->items(), id_)) return;
        setTicks(model->items.mutate(), tick,
                 [this](const CleanupItem& item) { return item.target.id == id_; });
    }

 private:
    std::weak_ptr<ViewModel> model_;
    std::string id_;
};

/// Largest first; items of equal size keep their order.
void sortBySize(CleanupItems& items);

}  // namespace tidewell
