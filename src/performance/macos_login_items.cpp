#include <algorithm>
#include <array>
#include <string_view>

#include "performance/login_items.h"
#include "platform/files.h"
#include "platform/path_text.h"
#include "platform/property_list.h"
#include "platform/uuid.h"

namespace tidewell {

namespace {

struct LaunchFolder {
    std::string_view path;
    std::string_view scope;
};

constexpr std::array launchFolders = {
    LaunchFolder{"~/Library/LaunchAgents", "You"},
    LaunchFolder{"/Library/LaunchAgents", "System"},
    LaunchFolder{"/Library/LaunchDaemons", "System"},
};

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

std::vector<LoginItem> macOSLoginItems(const Host& host) {
    std::vector<LoginItem> items;
    for (const auto& [tablePath, scope] : launchFolders) {
        const auto folder = host.locate(tablePath);
        const auto names = folderNames(folder).value_or(std::vector<std::string>{});
        for (const auto& name : names) {
            if (pathExtension(name) != "plist") continue;
            if (auto item = readLoginItem(joinPath(folder, name), scope))
                items.push_back(std::move(*item));
        }
    }
    return items;
}

}  // namespace tidewell
