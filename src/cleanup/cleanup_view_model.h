#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "async/observable.h"
#include "async/task.h"
#include "cleanup/cleanup_run.h"
#include "cleanup/disk_scanner.h"
#include "cleanup/item_selection.h"
#include "platform/user_defaults.h"

namespace tidewell {

/// The state of the Clean tool: runs a scan, keeps what it found with the user's ticks, runs the
/// clean. Main thread only; the slow work runs in the background. Nothing here fails: what cannot
/// be read gives no item, and what cannot be cleaned leaves its title in failedTitles.
class CleanupViewModel : public std::enable_shared_from_this<CleanupViewModel> {
 public:
    enum class Phase { idle, scanning, review, cleaning, done };

    explicit CleanupViewModel(const Host& host);

    /// Fired before each change of what follows.
    Signal willChange;

    Published<Phase> phase{willChange, Phase::idle};
    /// What the last scan found, largest first. Empty during a scan.
    Published<CleanupItems> items{willChange};
    /// Targets measured, divided by targets in all. 0 while project artifacts are searched.
    Published<double> scanProgress{willChange, 0.0};
    /// Items cleaned, divided by items selected.
    Published<double> cleanProgress{willChange, 0.0};
    /// The title of the target whose measure began last.
    Published<std::optional<std::string>> currentTarget{willChange};
    /// Free space at the start of the last scan or clean, and at the end of the last clean. Two
    /// readings of the volume: their difference need not be freedBytes.
    Published<ByteCount> freeSpaceBefore{willChange, 0};
    Published<ByteCount> freeSpaceAfter{willChange, 0};
    /// What the last clean did.
    Published<ByteCount> freedBytes{willChange, 0};
    Published<std::vector<std::string>> failedTitles{willChange};

    CleanupItems selectedItems() const { return tidewell::selectedItems(items()); }
    ByteCount totalBytes() const { return tidewell::totalBytes(items()); }
    ByteCount selectedBytes() const { return tidewell::totalBytes(items(), tickedItem); }
    CleanupItems itemsIn(CleanupCategory category) const;
    /// The categories that have at least one item, in their declared order.
    std::vector<CleanupCategory> activeCategories() const;
    std::size_t countIn(CleanupCategory category) const;
    std::size_t selectedCountIn(CleanupCategory category) const;
    /// The bytes of all items of the category, selected or not.
    ByteCount bytesIn(CleanupCategory category) const;

    /// One row's tick; see cleanup/item_selection.h.
    TickBinding<CleanupViewModel> selectionBinding(const CleanupItem& item);

    void selectAll(Tick tick);
    void setCategory(CleanupCategory category, Tick tick);
    void selectSafeOnly();
    void selectSafeOnlyIn(CleanupCategory category);

    /// Does nothing during a scan or a clean. Ends when the scan has ended.
    Task<> startScan();
    /// Does nothing during a clean, or when nothing is selected. Ends when the clean has ended.
    Task<> cleanSelected();
    /// Lets a clean end behind the item in hand; what was cleaned until then is accounted for.
    void stopAfterItemInHand() { nextStep_ = CleaningStep::stop; }
    /// Back to the start.
    void reset();

 private:
    Host host_;
    DiskScanner scanner_;
    UserDefaults defaults_;
    CleaningStep nextStep_ = CleaningStep::goOn;
};

}  // namespace tidewell
