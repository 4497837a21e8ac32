#include "shell/smart_scan_controller.h"

#include <cstdlib>
#include <limits>
#include <utility>

#include "async/executor.h"
#include "kit/words.h"

namespace tidewell {

namespace {

/// On macOS machines each tool measures by itself, so that two of them can be told apart by what
/// changed between them.
std::shared_ptr<MeasuredFolders> measuresToShare(System system) {
    switch (system) {
        case System::macOS:
            return nullptr;
        case System::linux:
            return std::make_shared<MeasuredFolders>();
    }
    return nullptr;
}

}  // namespace

SmartScanController::SmartScanController(std::shared_ptr<CleanupViewModel> cleanupModel,
                                         std::shared_ptr<AppsViewModel> appsModel,
                                         std::shared_ptr<DeepScanViewModel> deepScanModel,
                                         std::shared_ptr<AdvisorViewModel> advisorModel)
    : cleanup(std::move(cleanupModel)),
      apps(std::move(appsModel)),
      deepScan(std::move(deepScanModel)),
      advisor(std::move(advisorModel)) {
    // The signals do not keep their observers alive, and these go with the controller.
    const auto forward = [this] { willChange.fire(); };
    forwarders_ = {
        cleanup->willChange.subscribe(forward),
        apps->willChange.subscribe(forward),
        deepScan->willChange.subscribe(forward),
        advisor->willChange.subscribe(forward),
    };
}

bool SmartScanController::cleanFinished() const {
    return cleanup->phase() == CleanupViewModel::Phase::review ||
           cleanup->phase() == CleanupViewModel::Phase::done;
}

std::optional<SmartScanController::Tool> SmartScanController::currentTool() const {
    switch (phase()) {
        case Phase::clean:
            return Tool::clean;
        case Phase::apps:
            return Tool::apps;
        case Phase::deepScan:
            return Tool::deepScan;
        case Phase::advisor:
            return Tool::advisor;
        case Phase::idle:
        case Phase::done:
            break;
    }
    return std::nullopt;
}

std::string SmartScanController::detail() const {
    switch (phase()) {
        case Phase::clean:
            return cleanup->currentTarget().value_or("measuring caches…");
        case Phase::apps:
            return std::string(wordsOf(cleanup->servedSystem()).readingApplications);
        case Phase::deepScan:
            return "walking your home folder…";
        case Phase::advisor:
            return std::string(wordsOf(cleanup->servedSystem()).askingTools);
        case Phase::idle:
        case Phase::done:
            break;
    }
    return {};
}

bool SmartScanController::aToolIsBusy() const {
    return cleanup->phase() == CleanupViewModel::Phase::scanning ||
           cleanup->phase() == CleanupViewModel::Phase::cleaning ||
           apps->phase() == AppsViewModel::Phase::scanning ||
           deepScan->phase() == DeepScanViewModel::Phase::scanning ||
           advisor->phase() == AdvisorViewModel::Phase::scanning;
}

void SmartScanController::beginGeneration() {
    if (runID_ == std::numeric_limits<std::int64_t>::max()) std::abort();
    ++runID_;
}

void SmartScanController::start() {
    if (isRunning() || aToolIsBusy()) return;
    stopped = false;
    beginGeneration();
    spawn(shared_from_this(), &SmartScanController::run, runID_);
}

Task<> SmartScanController::run(std::int64_t generation) {
    try {
        co_await runTools(generation);
    } catch (...) {
        if (!isStale(generation)) stop();
        throw;
    }
}

Task<> SmartScanController::runTools(std::int64_t generation) {
    const auto known = measuresToShare(cleanup->host().system);
    phase = Phase::clean;
    co_await cleanup->startScanWith(known);
    if (isStale(generation)) co_return;
    phase = Phase::apps;
    co_await apps->scan();
    if (isStale(generation)) co_return;
    phase = Phase::deepScan;
    co_await deepScan->scanWith(known);
    if (isStale(generation)) co_return;
    phase = Phase::advisor;
    co_await advisor->scan();
    if (isStale(generation)) co_return;
    phase = Phase::done;
}

void SmartScanController::stop() {
    if (!isRunning()) return;
    beginGeneration();
    stopped = true;
    phase = Phase::done;
}

}  // namespace tidewell
