#pragma once

#include <string>
#include <vector>

#include "apps/app_finders.h"
#include "apps/uninstall_plan.h"
#include "platform/host.h"

namespace tidewell {

/// Which applications, other than the platform's own, the machine holds; what each of them leaves
/// among the user's things; and the uninstall of one. A plain value: every operation blocks, may be
/// called from any thread but the main one, and never fails towards its caller. What is missing or
/// unreadable is left out.
class AppScanner {
 public:
    using Progress = AppProgress;

    /// `searchDirs` are the folders that hold bundles, as paths on this disk.
    AppScanner(Host host, std::vector<std::string> searchDirs);

    /// The applications in the order in which they are found.
    std::vector<InstalledApp> scan(const Progress& onProgress = {}) const;

    /// The application's files outside of it: what goes by itself first, then largest first.
    std::vector<LeftoverFile> findLeftovers(const InstalledApp& app) const;
    /// What an uninstall would do.
    UninstallPlan plan(const InstalledApp& app) const;

    /// Carries a plan out. See apps/uninstaller.h.
    UninstallResult uninstall(const UninstallPlan& plan) const;
    PutBackResult putBack(const UninstallResult& result) const;

    const std::vector<std::string>& searchDirs() const { return searchDirs_; }

 private:
    Host host_;
    std::vector<std::string> searchDirs_;
};

}  // namespace tidewell
