#include "kit/list_difference.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace tidewell {

namespace {

/// For each row the place in `after` that it is meant for, or none; and which places have no row.
struct Matching {
    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    std::vector<std::size_t> placeOfRow;
    std::vector<bool> placeHasRow;
};

Matching match(const std::vector<std::string>& before, const std::vector<std::string>& after) {
    std::unordered_map<std::string, std::vector<std::size_t>> places;
    for (auto place = after.size(); place-- > 0;) places[after[place]].push_back(place);
    Matching matching{{}, std::vector<bool>(after.size(), false)};
    for (const auto& key : before) {
        const auto found = places.find(key);
        if (found == places.end() || found->second.empty()) {
            matching.placeOfRow.push_back(Matching::none);
            continue;
        }
        matching.placeOfRow.push_back(found->second.back());
        matching.placeHasRow[found->second.back()] = true;
        found->second.pop_back();
    }
    return matching;
}

}  // namespace

std::vector<ListStep> listDifference(const std::vector<std::string>& before,
                                     const std::vector<std::string>& after) {
    auto [rows, placeHasRow] = match(before, after);
    std::vector<ListStep> steps;
    for (auto row = rows.size(); row-- > 0;)
        if (rows[row] == Matching::none)
            steps.push_back({.kind = ListStep::Kind::remove, .from = row, .to = 0});
    std::erase(rows, Matching::none);
    for (std::size_t place = 0; place < after.size(); ++place) {
        const auto at = [&](std::size_t index) {
            return rows.begin() + static_cast<std::ptrdiff_t>(index);
        };
        if (!placeHasRow[place]) {
            rows.insert(at(place), place);
            steps.push_back({.kind = ListStep::Kind::insert, .from = 0, .to = place});
        } else if (rows[place] != place) {
            const auto from = std::find(at(place), rows.end(), place);
            const auto index = static_cast<std::size_t>(from - rows.begin());
            std::rotate(at(place), from, from + 1);
            steps.push_back({.kind = ListStep::Kind::move, .from = index, .to = place});
        }
    }
    return steps;
}

}  // namespace tidewell
