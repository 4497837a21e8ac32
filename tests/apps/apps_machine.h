#pragma once

#include <string>
#include <vector>

#include "apps/app_scanner.h"
#include "support/sample_machine.h"

namespace tidewell::test {

inline AppScanner scannerOf(const SampleMachine& machine) {
    return {machine.host(), applicationFolders(machine.host())};
}

inline std::vector<std::string> namesOf(const std::vector<InstalledApp>& apps) {
    std::vector<std::string> names;
    for (const auto& app : apps) names.push_back(app.name);
    return names;
}

/// The leftovers' paths below the user's Library with their categories: "Caches/x: Cache".
inline std::vector<std::string> linesOf(const std::vector<LeftoverFile>& leftovers,
                                        const SampleMachine& machine) {
    std::vector<std::string> lines;
    const auto prefix = machine.path("~/Library/").size();
    for (const auto& leftover : leftovers)
        lines.push_back(leftover.url.substr(prefix) + ": " + leftover.category);
    return lines;
}

}  // namespace tidewell::test
