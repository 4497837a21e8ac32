#include "devmode/dev_targets.h"

#include <algorithm>

#include "cleanup/target_catalogue.h"
#include "devmode/knowledge/knowledge.h"

namespace tidewell {

namespace {

bool isDeveloperRow(const CatalogueRow& row, const DevKnowledge& known) {
    return row.category == CleanupCategory::developerCaches ||
           row.category == CleanupCategory::aiCaches ||
           std::ranges::find(known.extraRows, row.id) != known.extraRows.end();
}

}  // namespace

std::vector<CleanupTarget> devTargets(const Host& host) {
    const auto known = devKnowledge(host.system);
    const auto catalogue = catalogueOf(host.system);
    std::vector<CleanupTarget> targets;
    for (const auto& row : catalogue.rows)
        if (isDeveloperRow(row, known)) targets.push_back(targetOf(row, host));
    for (const auto& row : catalogue.modelCaches) targets.push_back(targetOf(row, host));
    return targets;
}

}  // namespace tidewell
