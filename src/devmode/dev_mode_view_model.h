#pragma once

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "async/observable.h"
#include "async/task.h"
#include "cleanup/cleanup_run.h"
#include "cleanup/disk_scanner.h"
#include "cleanup/item_selection.h"
#include "devmode/ai_model_scanner.h"
#include "platform/user_defaults.h"

namespace tidewell {

/// The state of Dev Mode: everything that a developer's machine piles up, measured, ticked and
/// cleaned like the items of the Clean tool, beside model stores that are only shown. Main thread
/// only; the slow work runs in the background.
class DevModeViewModel : public std::enable_shared_from_this<DevModeViewModel> {
 public:
    enum class Phase { idle, scanning, review, cleaning, done };
    using TargetIDs = std::set<std::string, std::less<>>;

    explicit DevModeViewModel(const Host& host);

    /// Fired before each change of what follows.
    Signal willChange;

    Published<Phase> phase{willChange, Phase::idle};
    /// What the last scan found, largest first. Empty during a scan.
    Published<CleanupItems> items{willChange};
    Published<std::vector<AIModelStore>> models{willChange};
    /// Targets measured, divided by targets in all.
    Published<double> scanProgress{willChange, 0.0};
    /// Items cleaned, divided by items selected.
    Published<double> cleanProgress{willChange, 0.0};
    /// What the last clean did.
    Published<ByteCount> freedBytes{willChange, 0};
    Published<std::vector<std::string>> failedTitles{willChange};

    CleanupItems selectedItems() const { return tidewell::selectedItems(items()); }
    ByteCount selectedBytes() const { return tidewell::totalBytes(items(), tickedItem); }
    ByteCount itemsBytes() const { return tidewell::totalBytes(items()); }
    ByteCount modelsBytes() const { return tidewell::totalBytes(models()); }

    /// One row's tick, looked up by its id at each access; see cleanup/item_selection.h.
    TickBinding<DevModeViewModel> binding(const CleanupItem& item);

    void setAllSelected(Tick tick);
    void selectSafeOnly();
    void setSelected(Tick tick, const TargetIDs& ids);
    void selectSafeOnly(const TargetIDs& ids);

    /// Does nothing during a scan or a clean. Ends when the scan has ended.
    Task<> scan();
    /// Does nothing during a clean, or when nothing is selected. Ends when the clean has ended.
    Task<> clean();
    /// Lets a clean end behind the item in hand; what was cleaned until then is accounted for.
    void stopAfterItemInHand() { nextStep_ = CleaningStep::stop; }
    /// Back to the start view; items and models stay.
    void reset();

 private:
    Host host_;
    DiskScanner scanner_;
    AIModelScanner aiScanner_;
    UserDefaults defaults_;
    CleaningStep nextStep_ = CleaningStep::goOn;
};

}  // namespace tidewell
