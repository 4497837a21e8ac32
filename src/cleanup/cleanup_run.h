#pragma once

#include <functional>
#include <string>
#include <vector>

#include "async/task.h"
#include "cleanup/disk_scanner.h"
#include "cleanup/item_selection.h"

namespace tidewell {

// The two long operations that the Clean tool and Dev Mode share, as tasks of the main thread. The
// functions handed in are called on the main thread.

/// How many targets are measured at once.
inline constexpr int measuringWidth = 4;

struct MeasuringObserver {
    /// A measure beyond the first lot begins.
    std::function<void(const CleanupTarget&)> started = [](const CleanupTarget&) {};
    /// So much of all targets, from 0 to 1, has been measured.
    std::function<void(double)> progressed = [](double) {};
};

/// Measures the targets in the background, measuringWidth at a time. The items come largest first;
/// those of equal size in the order in which their measures ended.
Task<CleanupItems> measureTargets(DiskScanner scanner, std::vector<CleanupTarget> targets,
                                  MeasuringObserver observer);

enum class CleaningStep { goOn, stop };

struct CleaningObserver {
    /// So much of all items, from 0 to 1, has been cleaned. The answer decides about the next item.
    std::function<CleaningStep(double)> progressed = [](double) { return CleaningStep::goOn; };
};

/// What a clean did.
struct CleaningOutcome {
    ByteCount freedBytes = 0;
    std::vector<std::string> failedTitles;  ///< in the order of the items
};

/// Cleans the items in the background, strictly one after the other.
Task<CleaningOutcome> cleanItems(DiskScanner scanner, CleanupItems items,
                                 CleaningObserver observer);

}  // namespace tidewell
