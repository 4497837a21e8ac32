#pragma once

#include <vector>

#include "cleanup/cleaning_session.h"
#include "platform/user_defaults.h"

namespace tidewell {

/// The state of the Clean tool: runs a scan, keeps what it found with the user's ticks, runs the
/// clean. Threads and failures as in a CleaningSession.
class CleanupViewModel : public CleaningSession {
 public:
    explicit CleanupViewModel(const Host& host);

    /// Free space at the start of the last scan or clean, and at the end of the last clean. Two
    /// readings of the volume: their difference need not be freedBytes.
    Published<ByteCount> freeSpaceBefore{willChange, 0};
    Published<ByteCount> freeSpaceAfter{willChange, 0};

    ByteCount totalBytes() const { return tidewell::totalBytes(items()); }
    CleanupItems itemsIn(CleanupCategory category) const;
    /// The categories that have at least one item, in their declared order.
    std::vector<CleanupCategory> activeCategories() const;
    std::size_t countIn(CleanupCategory category) const;
    std::size_t selectedCountIn(CleanupCategory category) const;
    /// The bytes of all items of the category, selected or not.
    ByteCount bytesIn(CleanupCategory category) const;

    void setCategory(CleanupCategory category, Tick tick);
    void selectSafeOnlyIn(CleanupCategory category);

    /// Does nothing during a scan or a clean. Ends when the scan has ended.
    Task<> startScan() { return startScanWith(nullptr); }
    /// The same as a part of a scan with several tools, which tell each other what they measured.
    Task<> startScanWith(std::shared_ptr<MeasuredFolders> known);
    /// Does nothing during a clean, or when nothing is selected. Ends when the clean has ended.
    Task<> cleanSelected();
    /// Back to the start.
    void reset();

    const Host& host() const { return host_; }

 private:
    Host host_;
    UserDefaults defaults_;
};

}  // namespace tidewell
