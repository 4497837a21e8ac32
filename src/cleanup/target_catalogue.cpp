#include "cleanup/target_catalogue.h"

#include <algorithm>
#include <iterator>

#include "cleanup/deletion_guard.h"
#include "cleanup/kept_entries.h"

namespace tidewell {

namespace {

std::vector<std::string> pathsOf(const CatalogueRow& row, const Host& host) {
    switch (row.source) {
        case PathSource::stored:
            return storedPaths(row);
        case PathSource::deletableRoots:
            return deletableRoots(host);
    }
    return {};
}

}  // namespace

CleanupTarget targetOf(const CatalogueRow& row, const Host& host) {
    return {.id = std::string(row.id),
            .title = std::string(row.title),
            .detail = std::string(row.detail),
            .category = row.category,
            .safety = row.safety,
            .paths = pathsOf(row, host),
            .kind = row.kind,
            .programs = row.programs,
            .users = row.users,
            .devGroup = row.devGroup};
}

Catalogue catalogueOf(System system) {
    switch (system) {
        case System::macOS:
            return macOSCatalogue();
        case System::linux:
            return linuxCatalogue();
    }
    return {};
}

std::vector<std::string> storedPaths(const CatalogueRow& row) {
    std::vector<std::string> paths(row.paths.begin(), row.paths.end());
    for (const auto& product : row.products)
        for (const auto home : product.homes)
            for (const auto part : product.parts)
                paths.push_back(std::string(home) + "/" + std::string(part));
    return paths;
}

bool claims(const CatalogueRow& row, std::string_view path, const Host& host) {
    const auto coversIt = [&](std::string_view stored) { return covers(stored, host, path); };
    if (std::ranges::any_of(row.paths, coversIt)) return true;
    for (const auto& product : row.products)
        for (const auto home : product.homes)
            if (coversIt(home) && std::ranges::any_of(product.parts, [&](const auto part) {
                    return coversIt(std::string(home) + "/" + std::string(part));
                }))
                return true;
    return false;
}

std::vector<CleanupTarget> cleanupCatalogue(const Host& host) {
    const auto rows = catalogueOf(host.system).rows;
    std::vector<CleanupTarget> targets;
    targets.reserve(rows.size());
    for (const auto& row : rows) targets.push_back(targetOf(row, host));
    return targets;
}

std::vector<TablePath> claimedPaths(const Host& host) {
    std::vector<TablePath> claimed;
    for (const auto& row : catalogueOf(host.system).rows)
        if (!isSweep(row.kind))
            for (const auto& stored : pathsOf(row, host)) claimed.emplace_back(stored, host);
    return claimed;
}

std::vector<std::string> namedCacheFolders(const Host& host) {
    const auto catalogue = catalogueOf(host.system);
    std::vector<std::string> stored;
    for (const auto rows : {catalogue.rows, catalogue.modelCaches})
        for (const auto& row : rows)
            if (!isSweep(row.kind) && row.source == PathSource::stored)
                std::ranges::move(storedPaths(row), std::back_inserter(stored));
    return existingPlaces(stored, host);
}

std::vector<TablePath> neverSweptPaths(const Host& host) {
    const auto catalogue = catalogueOf(host.system);
    std::vector<TablePath> never;
    const auto addInEverySweptFolder = [&](std::string_view name) {
        for (const auto& row : catalogue.rows)
            if (row.kind == TargetKind::sweep)
                for (const auto folder : row.paths)
                    never.emplace_back(std::string(folder) + "/" + std::string(name), host);
    };
    for (const auto name : keptKnowledge(host.system).neverSwept) addInEverySweptFolder(name);
    for (const auto name : catalogue.neverSwept) {
        if (name.find('/') == std::string_view::npos) {
            addInEverySweptFolder(name);
        } else {
            never.emplace_back(name, host);
        }
    }
    return never;
}

bool covers(const std::vector<TablePath>& paths, std::string_view path) {
    return std::ranges::any_of(paths, [path](const auto& one) { return one.covers(path); });
}

}  // namespace tidewell
