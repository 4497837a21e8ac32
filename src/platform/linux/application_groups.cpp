#include "platform/linux/application_groups.h"

#include <algorithm>
#include <map>
#include <set>

#include "platform/path_text.h"

namespace tidewell::linux_system {

namespace {

/// Applications by what is known of their processes.
class Directory {
 public:
    explicit Directory(const std::vector<KnownApplication>& known) {
        for (const auto& application : known) {
            byId_.emplace(application.id, &application);
            if (!application.executable.empty())
                byExecutable_.emplace(application.executable, &application);
            // "paint_paint" is an entry of the snap "paint".
            const auto snap = application.id.substr(0, application.id.find('_'));
            if (snap != application.id) bySnap_.emplace(snap, &application);
        }
    }

    const KnownApplication* of(const GroupedApplication& group) const {
        return find(group.packaging == Packaging::snap ? bySnap_ : byId_, group.id);
    }
    const KnownApplication* of(const std::string& executable) const {
        return find(byExecutable_, executable);
    }

 private:
    using Index = std::map<std::string, const KnownApplication*, std::less<>>;
    static const KnownApplication* find(const Index& index, const std::string& key) {
        const auto found = index.find(key);
        return found == index.end() ? nullptr : found->second;
    }

    Index byId_;
    Index byExecutable_;
    Index bySnap_;
};

RunningApplication asApplication(const KnownApplication& known) {
    return {.process = {},
            .name = known.name,
            .bundleIdentifier = known.id,
            .bundlePath = std::nullopt,
            .activationPolicy = known.activationPolicy,
            .iconFile = known.icon,
            .processes = {}};
}

RunningApplication withoutEntry(const GroupedApplication& group) {
    const bool isEntry = group.packaging == Packaging::desktopEntry;
    return {.process = {},
            .name = group.id,
            .bundleIdentifier = group.id,
            .bundlePath = std::nullopt,
            .activationPolicy = isEntry ? ActivationPolicy::background : ActivationPolicy::regular,
            .processes = {}};
}

/// The application that a process itself tells of.
std::optional<RunningApplication> ownApplication(const ProcessFacts& process,
                                                 const Directory& directory) {
    if (process.group) {
        const auto* known = directory.of(*process.group);
        return known ? asApplication(*known) : withoutEntry(*process.group);
    }
    const auto* known = directory.of(process.executable);
    return known ? std::optional(asApplication(*known)) : std::nullopt;
}

}  // namespace

std::vector<RunningApplication> groupedApplications(const std::vector<ProcessFacts>& processes,
                                                    const std::vector<KnownApplication>& known) {
    const Directory directory(known);
    std::map<std::int32_t, std::optional<RunningApplication>> own;
    std::map<std::int32_t, std::int32_t> parents;
    for (const auto& process : processes) {
        own.emplace(process.identity.id, ownApplication(process, directory));
        parents.emplace(process.identity.id, process.parent);
    }
    // Processes come and go while they are read, so that parents may seem to go round in a circle.
    const auto applicationOf = [&](std::int32_t id) -> const RunningApplication* {
        std::set<std::int32_t> passed;
        for (auto at = own.find(id); at != own.end(); at = own.find(parents[at->first])) {
            if (at->second) return &*at->second;
            if (!passed.insert(at->first).second) break;
        }
        return nullptr;
    };
    std::vector<RunningApplication> applications;
    std::map<std::string, std::size_t> places;
    for (const auto& process : processes) {
        const auto* application = applicationOf(process.identity.id);
        if (!application) continue;
        const auto [place, isNew] =
            places.emplace(*application->bundleIdentifier, applications.size());
        if (isNew) {
            applications.push_back(*application);
            applications.back().process = process.identity;
        }
        applications[place->second].processes.push_back(process.identity);
    }
    return applications;
}

}  // namespace tidewell::linux_system
