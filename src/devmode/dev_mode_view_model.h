#pragma once

#include <set>
#include <string>
#include <vector>

#include "cleanup/cleaning_session.h"
#include "devmode/ai_model_scanner.h"
#include "platform/user_defaults.h"

namespace tidewell {

/// The state of Dev Mode: everything that a developer's machine piles up, measured, ticked and
/// cleaned like the items of the Clean tool, beside model stores that are only shown. Threads and
/// failures as in a CleaningSession.
class DevModeViewModel : public CleaningSession {
 public:
    using TargetIDs = std::set<std::string, std::less<>>;

    explicit DevModeViewModel(const Host& host);

    Published<std::vector<AIModelStore>> models{willChange};

    ByteCount itemsBytes() const { return totalBytes(items()); }
    ByteCount modelsBytes() const { return totalBytes(models()); }

    TickBinding binding(const CleanupItem& item) { return selectionBinding(item); }

    void setAllSelected(Tick tick) { selectAll(tick); }
    using CleaningSession::selectSafeOnly;
    void setSelected(Tick tick, const TargetIDs& ids);
    void selectSafeOnly(const TargetIDs& ids);

    /// Does nothing during a scan or a clean. Ends when the scan has ended.
    Task<> scan();
    /// Does nothing during a clean, or when nothing is selected. Ends when the clean has ended.
    Task<> clean();
    /// Back to the start view; items and models stay.
    void reset();

 private:
    Host host_;
    AIModelScanner aiScanner_;
    UserDefaults defaults_;
};

}  // namespace tidewell
