#pragma once

#include <utility>

#include "async/observable.h"
#include "cleanup/stored_sums.h"
#include "platform/byte_count.h"
#include "platform/user_defaults.h"

namespace tidewell {

/// What all cleans have done together, as it was last read: the window's tools, and a command line
/// beside it, change the stored values. Main thread only.
class LiveSums {
 public:
    explicit LiveSums(UserDefaults defaults) : defaults_(std::move(defaults)) { read(); }

    /// Fired before each change of what follows.
    Signal willChange;
    Published<ByteCount> totalFreedBytes{willChange, 0};
    /// In seconds since 1970; 0 if there was none.
    Published<double> lastCleanupAt{willChange, 0};

    /// Reads the stored values anew; nothing is fired if they are as before.
    void read() {
        if (const auto freed = defaults_.integer(totalFreedBytesKey); freed != totalFreedBytes())
            totalFreedBytes = freed;
        if (const auto last = defaults_.real(lastCleanupAtKey); last != lastCleanupAt())
            lastCleanupAt = last;
    }

 private:
    const UserDefaults defaults_;
};

}  // namespace tidewell
