#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "shell/smart_scan_controller.h"
#include "support/sample_machine.h"
#include "support/test_loop.h"

namespace tidewell::test {

/// The controller over the view models of a sample machine.
class SmartScanTest : public testing::Test {
 protected:
    using Phase = SmartScanController::Phase;

    const SampleMachine machine;
    TestLoop loop;
    const std::shared_ptr<CleanupViewModel> cleanup =
        std::make_shared<CleanupViewModel>(machine.host());
    const std::shared_ptr<AppsViewModel> apps = std::make_shared<AppsViewModel>(machine.host());
    const std::shared_ptr<DeepScanViewModel> deepScan =
        std::make_shared<DeepScanViewModel>(machine.host());
    const std::shared_ptr<AdvisorViewModel> advisor =
        std::make_shared<AdvisorViewModel>(machine.host());
    std::shared_ptr<SmartScanController> controller =
        std::make_shared<SmartScanController>(cleanup, apps, deepScan, advisor);
};

inline CleanupItem junk(std::string title, ByteCount size) {
    CleanupItem item;
    item.target.title = std::move(title);
    item.sizeBytes = size;
    return item;
}

inline BigItem bigItem(std::string name, ByteCount size) {
    BigItem item;
    item.name = std::move(name);
    item.sizeBytes = size;
    return item;
}

inline InstalledApp appLastUsed(std::optional<Date> date) {
    InstalledApp app;
    app.lastUsed = date;
    return app;
}

inline SimRuntime runtimeOfSize(ByteCount size) {
    SimRuntime runtime;
    runtime.sizeBytes = size;
    return runtime;
}

}  // namespace tidewell::test
