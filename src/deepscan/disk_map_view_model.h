#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "async/observable.h"
#include "async/paced_observer.h"
#include "async/task.h"
#include "deepscan/deep_scan_view_model.h"
#include "deepscan/disk_map.h"
#include "platform/stop.h"

namespace tidewell {

/// The state of the map of the home folder: walks when it is asked to, and from then on keeps the
/// picture as it is: what the deep scan moves to the Trash goes out of it, and what is put back
/// comes in again. Main thread only; the slow work runs in the background.
class DiskMapViewModel : public std::enable_shared_from_this<DiskMapViewModel> {
 public:
    enum class Phase { idle, mapping, map };

    explicit DiskMapViewModel(std::shared_ptr<DeepScanViewModel> list);

    /// Fired before each change of what follows.
    Signal willChange;

    Published<Phase> phase{willChange, Phase::idle};
    /// Of the last walk; during a walk still that of the one before.
    Published<DiskMap> map{willChange};
    /// What the walk under way has met so far.
    Published<ByteCount> metBytes{willChange};

    const Host& host() const { return list_->host; }

    /// Does nothing during a walk. Ends when the walk has ended.
    Task<> make();
    /// Ends a walk under way: all is as before it.
    void stop() { stop_.request_stop(); }

    /// A node as one of the things that the deep scan lists.
    BigItem item(std::uint32_t node) const;
    /// Ends when the Trash has answered, as the deep scan's own.
    Task<> trash(std::uint32_t node) { return list_->trash(item(node)); }

 private:
    struct Gone {
        TrashedItem item;
        std::string name;
        DiskMap::Taken taken;
    };

    void follow();
    void takeWhatWent();
    void putBackWhatCame();

    const std::shared_ptr<DeepScanViewModel> list_;
    StopSource stop_;
    std::vector<Gone> gone_;  ///< since the walk
    PacedObserver observer_;
};

}  // namespace tidewell
