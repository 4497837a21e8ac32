#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "async/observable.h"
#include "async/task.h"
#include "deepscan/big_item.h"
#include "deepscan/big_item_scanner.h"
#include "deepscan/container_scanner.h"
#include "deepscan/installer_scanner.h"
#include "deepscan/trashed_thing.h"
#include "kit/left_out.h"
#include "platform/host.h"

namespace tidewell {

/// One list of what the three scanners found, largest first. A walked item that is also an
/// installer gives way to it; one at or below an excluded path goes. At equal sizes walked items
/// come before installers, and those before containers.
std::vector<BigItem> mergeDeepScan(std::vector<BigItem> walked, std::vector<BigItem> installers,
                                   std::vector<BigItem> containers,
                                   const std::vector<std::string>& excludedPaths);

/// The state of the Deep Scan tool: runs the three scanners as one scan, keeps the list, moves one
/// item at a time to the Trash. Main thread only; the slow work runs in the background.
class DeepScanViewModel : public std::enable_shared_from_this<DeepScanViewModel> {
 public:
    enum class Phase { idle, scanning, list };

    struct PutBackOutcome {
        std::string name;
        std::string problem;                ///< why it is not back, a sentence; empty if it is
        std::optional<TrashedItem> stayed;  ///< what is in the Trash as before
    };

    explicit DeepScanViewModel(const Host& machine);

    /// Fired before each change of what follows.
    Signal willChange;

    Published<Phase> phase{willChange, Phase::idle};
    /// What the last scan found, largest first, without what was trashed since. During a scan still
    /// the list of the one before.
    Published<std::vector<BigItem>> items{willChange};
    /// What lies in the Trash, largest first: what the last scan found there, where it is told of,
    /// and what was moved there since.
    Published<std::vector<TrashedThing>> inTrash{willChange};
    /// The share of the walk's candidates that are measured; installers and containers come after
    /// the walk and move nothing.
    Published<double> scanProgress{willChange, 0.0};
    Published<LeftOut> leftOut{willChange};  ///< of the last scan
    /// How the last move to the Trash ended, until the next scan.
    Published<std::optional<BigItemScanner::TrashOutcome>> lastResult{willChange};

    /// How the last attempt to put something back ended, until the next move or scan.
    Published<std::optional<PutBackOutcome>> lastPutBack{willChange};

    const Host host;        ///< the machine that is looked through
    const bool listsTrash;  ///< whether the user is told what lies in the Trash

    ByteCount totalBytes() const { return tidewell::totalBytes(items()); }

    /// Does nothing during a scan. Ends when the scan has ended.
    Task<> scan() { return scanWith(nullptr); }
    /// The same as a part of a scan with several tools, which tell each other what they measured.
    Task<> scanWith(std::shared_ptr<MeasuredFolders> known);
    /// Ends when the Trash has answered. An item that could not be moved stays in the list.
    Task<> trash(BigItem item);
    /// Puts back one of the things in the Trash; does nothing for any other, or while it is on its
    /// way. Ends when it is back where it was, and in the list if it was moved from there, or stays
    /// in the Trash.
    Task<> putBack(TrashedItem item);
    /// What the last move has put into the Trash, or did not get back from there.
    std::optional<TrashedItem> undoable() const;

    /// Sets scanProgress in a later turn, unless the view model is gone by then. Made on the main
    /// thread, called on any.
    BigItemScanner::Progress progressHop();

 private:
    const BigItemScanner scanner_;
    const InstallerScanner installerScanner_;
    const ContainerScanner containerScanner_;
    void addToTrash(TrashedThing thing);
    std::optional<TrashedThing> takeFromTrash(const TrashedItem& item);
};

}  // namespace tidewell
