#include <algorithm>
#include <array>
#include <set>

#include "apps/leftover_search.h"
#include "apps/linux/app_entries.h"
#include "cleanup/kept_entries.h"
#include "platform/files.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

struct BaseFolder {
    std::string BaseFolders::*path;
    std::string_view category;
    bool goesByItself;
};

constexpr std::array baseFolderRows = {
    BaseFolder{&BaseFolders::cache, "Cache", true},
    BaseFolder{&BaseFolders::config, "Settings", false},
    BaseFolder{&BaseFolders::data, "Data", false},
    BaseFolder{&BaseFolders::state, "State", false},
};

class Places {
 public:
    explicit Places(const Host& host) : kept_(keptEntries(host)) {}

    /// Each path once, if something stands there that is not protected; a dangling link is left.
    void add(const std::string& path, std::string_view category, bool goesByItself) {
        const bool isKept =
            isAtOrBelowAny(path, kept_.keys) || isAtOrBelowAny(path, kept_.profiles);
        if (isKept || !fileExists(path) || !seen_.insert(path).second) return;
        const bool onlyLooksLikeACache = isAtOrBelowAny(path, kept_.neverSwept);
        found_.push_back({.path = path,
                          .category = category,
                          .goesByItself = goesByItself && !onlyLooksLikeACache});
    }

    std::vector<LeftoverPlace> inOrder() {
        std::ranges::stable_partition(found_, &LeftoverPlace::goesByItself);
        return std::move(found_);
    }

 private:
    KeptEntries kept_;
    std::set<std::string> seen_;
    std::vector<LeftoverPlace> found_;
};

}  // namespace

std::vector<LeftoverPlace> linuxLeftoverPlaces(const InstalledApp& app, const Host& host) {
    Places places(host);
    for (const auto& file : app.menuFiles) {
        const bool isEntry = pathExtension(file) == "desktop";
        places.add(file, isEntry ? "Menu entry" : "Icon", true);
    }
    for (const auto& id : app.entryIds)
        if (canBeKeptUnder(id))
            places.add(joinPath(host.baseFolders.config, "autostart/" + id + ".desktop"),
                       "Autostart", true);
    for (const auto& row : baseFolderRows)
        for (const auto& name : app.ownNames)
            if (canBeKeptUnder(name))
                places.add(joinPath(host.baseFolders.*row.path, name), row.category,
                           row.goesByItself);
    if (!app.ownFolder.empty()) places.add(app.ownFolder, "Sandbox", false);
    return places.inOrder();
}

}  // namespace tidewell
