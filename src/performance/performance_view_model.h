#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "async/observable.h"
#include "async/task.h"
#include "performance/performance_service.h"

namespace tidewell {

/// The Performance tool: memory, running applications, what starts by itself, and the one verb of
/// asking an application to quit. Main thread only; the probes run in the background. Nothing
/// refreshes by itself.
class PerformanceViewModel : public std::enable_shared_from_this<PerformanceViewModel> {
 public:
    enum class Phase { idle, scanning, list };

    /// How long after a request to quit the list is read again.
    static constexpr std::chrono::milliseconds timeToClose{900};

    explicit PerformanceViewModel(const Host& host) : service(host), system{host.system} {}

    /// Fired before each change of what follows.
    Signal willChange;

    Published<Phase> phase{willChange, Phase::idle};
    /// Largest first.
    Published<std::vector<RunningApp>> apps{willChange};
    /// By label.
    Published<std::vector<LoginItem>> loginItems{willChange};
    Published<ByteCount> memoryUsed{willChange, 0};
    Published<ByteCount> memoryTotal{willChange, 1};
    /// The application that was asked to quit last, until the list has been read again.
    Published<std::optional<std::int32_t>> busyPID{willChange};
    /// How the last request went, until the next request or scan, or until the user closes it.
    Published<std::optional<std::string>> lastMessage{willChange};

    const PerformanceService service;
    const System system;  ///< of the machine that is looked at

    /// Used memory as a share of all, from 0 to 1; 0 while the total is not known.
    double memoryFraction() const;
    ByteCount totalAppMemory() const;

    /// Does nothing during a scan. The old lists stay until the new ones are there.
    Task<> scan();
    /// Asks the application to quit, never forces it, and reads the list again a little later. Does
    /// nothing if it has already ended. The answer is that of the process.
    Termination quit(const RunningApp& app);

 private:
    Task<> refreshAfterQuit();
};

}  // namespace tidewell
