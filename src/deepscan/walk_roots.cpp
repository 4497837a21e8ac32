#include "deepscan/walk_roots.h"

#include <algorithm>
#include <utility>

#include "cleanup/kept_entries.h"
#include "deepscan/knowledge/knowledge.h"
#include "platform/files.h"
#include "platform/path_text.h"

namespace tidewell {

std::vector<std::string> walkRoots(const Host& host) {
    const auto known = deepScanKnowledge(host.system);
    std::vector<std::string> roots;
    // A base folder may be a visible folder, too.
    const auto add = [&roots](std::string path) {
        if (std::ranges::find(roots, path) == roots.end()) roots.push_back(std::move(path));
    };
    for (const auto stored : known.roots) add(host.expand(stored));
    for (const auto& name : folderNames(host.home).value_or(std::vector<std::string>{})) {
        const bool isExcluded =
            std::ranges::find(known.homeRootExclusions, name) != known.homeRootExclusions.end();
        auto path = joinPath(host.home, name);
        if (!name.starts_with('.') && !isExcluded && fileKind(path) == FileKind::folder)
            add(std::move(path));
    }
    // One that lies deeper is the user's all the same, and goes as one thing no more than others.
    for (const auto& folder : keptEntries(host).personalFolders)
        if (parentPath(folder) != host.home && isBelow(folder, host.home) &&
            fileKind(folder) == FileKind::folder)
            add(folder);
    return roots;
}

std::vector<std::string> walkExclusions(const Host& host) {
    std::vector<std::string> paths;
    for (const auto stored : deepScanKnowledge(host.system).walkExclusions)
        paths.push_back(host.expand(stored));
    return paths;
}

}  // namespace tidewell
