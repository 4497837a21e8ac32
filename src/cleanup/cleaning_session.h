#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "async/observable.h"
#include "async/task.h"
#include "cleanup/disk_scanner.h"
#include "cleanup/item_selection.h"
#include "kit/left_out.h"
#include "platform/user_defaults.h"

namespace tidewell {

class CleaningSession;

/// One row's tick, looked up by its target's id at each access: off, and without effect, once the
/// item or the session is gone.
class TickBinding {
 public:
    TickBinding(std::weak_ptr<CleaningSession> session, std::string id)
        : session_(std::move(session)), id_(std::move(id)) {}

    bool get() const;
    void set(Tick tick) const;

 private:
    std::weak_ptr<CleaningSession> session_;
    std::string id_;
};

/// How many targets are measured at once.
inline constexpr int measuringWidth = 4;
/// Between two attempts to write down what was freed.
inline constexpr Duration storingInterval = std::chrono::seconds(5);

/// What the Clean tool and Dev Mode have in common: targets are measured, the user ticks items, and
/// what is ticked is cleaned, one item after the other. Main thread only; the slow work runs in the
/// background. Nothing here fails: what cannot be read gives no item, and what cannot be cleaned
/// leaves its title in failedTitles.
class CleaningSession : public std::enable_shared_from_this<CleaningSession> {
 public:
    enum class Phase { idle, scanning, review, cleaning, done };

    CleaningSession(const CleaningSession&) = delete;
    CleaningSession& operator=(const CleaningSession&) = delete;

    /// Fired before each change of what follows.
    Signal willChange;

    Published<Phase> phase{willChange, Phase::idle};
    /// What the last scan found, largest first. Empty during a scan.
    Published<CleanupItems> items{willChange};
    /// Targets measured, divided by targets in all. 0 while project artifacts are searched.
    Published<double> scanProgress{willChange, 0.0};
    /// Items cleaned, divided by items selected.
    Published<double> cleanProgress{willChange, 0.0};
    /// The title of the target whose measure began last, beyond the first lot.
    Published<std::optional<std::string>> currentTarget{willChange};
    Published<LeftOut> leftOut{willChange};  ///< of the last scan
    /// What the last clean did.
    Published<ByteCount> freedBytes{willChange, 0};
    Published<std::vector<std::string>> failedTitles{willChange};  ///< in the order of the items

    /// Of the machine that is cleaned.
    System servedSystem() const { return scanner_.host().system; }

    bool isBusy() const { return phase() == Phase::scanning || phase() == Phase::cleaning; }

    CleanupItems selectedItems() const { return tidewell::selectedItems(items()); }
    ByteCount selectedBytes() const { return totalBytes(items(), tickedItem); }

    TickBinding selectionBinding(const CleanupItem& item) {
        return {weak_from_this(), item.target.id};
    }
    void selectAll(Tick tick) { setTicksTogether(items.mutate(), tick, everyItem); }
    void selectSafeOnly() { tickSafeOnly(items.mutate(), everyItem); }

    /// Lets a clean end behind the item in hand: no other begins, and what was cleaned until then
    /// is accounted for, so that `phase` comes to `done`. Holds also for a clean that is still to
    /// begin, until the next scan or a reset.
    void stopAfterItemInHand() { mayBeginItems_ = false; }

    /// Whether what was freed is in the sum that the program keeps for good. Until then it is tried
    /// again every few seconds.
    bool isSumStored() const { return unstored_ == 0; }

 protected:
    explicit CleaningSession(const Host& host) : scanner_(host) {}
    ~CleaningSession() = default;

    const DiskScanner& scanner() const { return scanner_; }

    /// Searches project artifacts, and measures them behind `targets`, measuringWidth at a time.
    /// The items come largest first; those of equal size in the order in which their measures
    /// ended.
    Task<CleanupItems> measured(std::vector<CleanupTarget> targets,
                                std::shared_ptr<MeasuredFolders> known);

    bool canClean() const;
    /// Publishes what was freed and what failed. The phase is left at `cleaning`, for what is to be
    /// written down behind it.
    Task<> cleanTicked();

    /// Adds an amount to the sum; on any thread.
    using Store = std::function<UserDefaults::Written(ByteCount freed)>;
    /// Stores what was freed. Ends behind the first attempt: another program may hold the file.
    Task<> storeFreed(Store store);

    void beginScan();
    /// For a scan that an exception ended.
    void abandonScan();
    void forgetRun();

 private:
    Task<> tryToStore();
    Task<> storeLater();

    DiskScanner scanner_;
    Store store_;
    ByteCount unstored_ = 0;
    bool mayBeginItems_ = true;
};

}  // namespace tidewell
