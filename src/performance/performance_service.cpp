#include "performance/performance_service.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "platform/collation.h"
#include "platform/files.h"
#include "platform/path_text.h"
#include "platform/property_list.h"
#include "platform/uuid.h"

namespace tidewell {

namespace {

constexpr auto unknownProgram = "—";

struct LaunchFolder {
    std::string_view path;
    std::string_view scope;
};

constexpr std::array launchFolders = {
    LaunchFolder{"~/Library/LaunchAgents", "You"},
    LaunchFolder{"/Library/LaunchAgents", "System"},
    LaunchFolder{"/Library/LaunchDaemons", "System"},
};

RunningApp runningApp(const RunningApplication& application) {
    return {.id = application.process.id,
            .name = application.name.value_or("App"),
            .bundleID = application.bundleIdentifier,
            .url = application.bundlePath,
            .memoryBytes = physicalFootprint(application.process),
            .process = application.process};
}

/// The first of the arguments, if all of them are texts.
std::optional<std::string> firstArgument(const Value& definition) {
    const auto* arguments = definition.find("ProgramArguments");
    const auto* list = arguments ? arguments->list() : nullptr;
    const auto isText = [](const Value& argument) { return argument.text() != nullptr; };
    if (!list || list->empty() || !std::ranges::all_of(*list, isText)) return std::nullopt;
    return *list->front().text();
}

std::string programOf(const Value& definition) {
    if (auto program = definition.textAt("Program")) return *program;
    return firstArgument(definition).value_or(unknownProgram);
}

std::optional<LoginItem> readLoginItem(const std::string& path, std::string_view scope) {
    const auto definition = readPropertyList(path);
    if (!definition || !definition->object()) return std::nullopt;
    auto label = definition->textAt("Label");
    return LoginItem{.id = randomUuid(),
                     .label = label ? *label : std::string(nameWithoutExtension(path)),
                     .program = programOf(*definition),
                     .plistURL = path,
                     .scope = std::string(scope)};
}

}  // namespace

std::vector<RunningApp> PerformanceService::runningApps() const {
    std::vector<RunningApp> apps;
    for (const auto& application : runningApplications(host_)) {
        const bool isRegular = application.activationPolicy == ActivationPolicy::regular;
        const bool isThisProgram = application.bundleIdentifier == host_.ownBundle.identifier;
        if (isRegular && !isThisProgram) apps.push_back(runningApp(application));
    }
    std::ranges::stable_sort(apps, std::ranges::greater{}, &RunningApp::memoryBytes);
    return apps;
}

std::vector<LoginItem> PerformanceService::loginItems() const {
    std::vector<LoginItem> items;
    for (const auto& [tablePath, scope] : launchFolders) {
        const auto folder = host_.locate(tablePath);
        const auto names = folderNames(folder).value_or(std::vector<std::string>{});
        for (const auto& name : names) {
            if (pathExtension(name) != "plist") continue;
            if (auto item = readLoginItem(joinPath(folder, name), scope))
                items.push_back(std::move(*item));
        }
    }
    std::ranges::stable_sort(items, [](const LoginItem& left, const LoginItem& right) {
        return compareForPeople(left.label, right.label) < 0;
    });
    return items;
}

}  // namespace tidewell
