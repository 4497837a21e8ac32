#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "apps/installed_app.h"
#include "apps/uninstall_plan.h"
#include "platform/host.h"

namespace tidewell {

/// Which applications, other than the platform's own, the machine holds; what each of them leaves
/// in the user's Library; and the uninstall of one. A plain value: every operation blocks, may be
/// called from any thread but the main one, and never fails towards its caller. What is missing or
/// unreadable is left out.
class AppScanner {
 public:
    /// Given fractions between 0 and 1, on the scanning thread.
    using Progress = std::function<void(double)>;

    /// `searchDirs` are the folders that hold applications, as paths on this disk.
    AppScanner(Host host, std::vector<std::string> searchDirs);

    /// The applications directly in the search folders, or one folder down, in the order in which
    /// they are found. Reports after each bundle, the passed-over ones included; 1 at the end.
    std::vector<InstalledApp> scan(const Progress& onProgress = {}) const;

    /// The application's files in the user's Library, largest first.
    std::vector<LeftoverFile> findLeftovers(const InstalledApp& app) const;

    /// Moves an application and its leftovers to the Trash. See apps/uninstaller.h.
    UninstallResult uninstall(const UninstallPlan& plan) const;
    PutBackResult putBack(const UninstallResult& result) const;

    const std::vector<std::string>& searchDirs() const { return searchDirs_; }

 private:
    std::optional<InstalledApp> readApp(const std::string& path) const;

    Host host_;
    std::vector<std::string> searchDirs_;
};

/// The folders where people keep applications: the machine's, its utilities, and the user's own.
std::vector<std::string> applicationFolders(const Host& host);

}  // namespace tidewell
