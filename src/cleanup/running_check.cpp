#include "cleanup/running_check.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "cleanup/table_paths.h"
#include "platform/path_text.h"
#include "platform/running_programs.h"

namespace tidewell {

namespace {

std::vector<std::string> copied(const ConstantTexts& texts) {
    return {texts.begin(), texts.end()};
}

ProgramSigns signsOf(const Program& program, const CleanupItem& item, const Host& host) {
    ProgramSigns signs{.name = std::string(program.name),
                       .executables = copied(program.executables),
                       .flatpaks = copied(program.flatpaks),
                       .snaps = copied(program.snaps),
                       .folders = item.resolvedPaths};
    for (const auto lock : program.lockFiles)
        std::ranges::move(possiblePlaces(lock, host), std::back_inserter(signs.lockFiles));
    return signs;
}

/// The application in whose folder a path lies, where the row is for those of all applications.
std::optional<ProgramSigns> ownerOf(const std::string& path, const CleanupItem& item,
                                    const Host& host) {
    for (const auto& stored : item.target.paths) {
        const TablePath table(stored, host);
        if (!table.covers(path) || table.pieces().empty()) continue;
        const std::string id(pathPieces(pathRelativeTo(path, table.base())).front());
        const auto name = id.substr(id.rfind('.') + 1);
        return ProgramSigns{.name = name, .flatpaks = {id}};
    }
    return std::nullopt;
}

std::vector<ProgramSigns> signsOf(const CleanupItem& item, const Host& host) {
    std::vector<ProgramSigns> signs;
    for (const auto& program : item.target.programs) signs.push_back(signsOf(program, item, host));
    if (item.target.users == PathUsers::applicationOfPath)
        for (const auto& path : item.resolvedPaths)
            if (auto owner = ownerOf(path, item, host)) signs.push_back(std::move(*owner));
    return signs;
}

std::vector<std::string> runningAmong(const CleanupItem& item, const RunningPrograms& running,
                                      const Host& host) {
    std::vector<std::string> names;
    for (auto& signs : signsOf(item, host)) {
        auto name = running.firstRunning({std::move(signs)});
        if (name && std::ranges::find(names, *name) == names.end())
            names.push_back(std::move(*name));
    }
    return names;
}

}  // namespace

std::vector<std::string> runningProgramsOf(const CleanupItem& item, const Host& host) {
    if (!item.target.hasPrograms()) return {};
    return runningAmong(item, RunningPrograms(host), host);
}

void markRunning(CleanupItems& items, const Host& host) {
    const auto hasPrograms = [](const CleanupItem& item) { return item.target.hasPrograms(); };
    if (std::ranges::none_of(items, hasPrograms)) return;
    const RunningPrograms running(host);
    for (auto& item : items) {
        if (!item.target.hasPrograms()) continue;
        item.runningPrograms = runningAmong(item, running, host);
        item.isSelected = item.isSelected && !item.isInUse();
    }
}

}  // namespace tidewell
