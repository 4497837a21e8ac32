#include "cli/selection.h"

#include <algorithm>

#include "platform/files.h"
#include "platform/path_text.h"
#include "platform/text.h"

namespace tidewell::cli {

namespace {

bool isPreselected(const CleanupItem& item, const SelectionWish& wish) {
    if (!wish.only.empty()) return false;
    switch (wish.preselection) {
        case Preselection::safe:
            return item.target.safety == SafetyLevel::safe && !item.isInUse();
        case Preselection::all:
            return !item.isInUse();
        case Preselection::none:
            return false;
    }
    return false;
}

}  // namespace

std::variant<std::size_t, WrongCall> findById(const std::vector<std::string>& ids,
                                              const std::string& wanted, std::string_view what) {
    const auto exact = std::ranges::find(ids, wanted);
    if (exact != ids.end()) return static_cast<std::size_t>(exact - ids.begin());
    std::vector<std::size_t> shown;
    for (std::size_t i = 0; i < ids.size(); ++i)
        if (wellFormedText(ids[i]) == wanted) shown.push_back(i);
    if (shown.size() == 1) return shown.front();
    const std::string problem = shown.empty() ? "There is no " : "There is more than one ";
    return WrongCall{problem + std::string(what) + " with the id " + terminalText(wanted)};
}

std::string namedPath(const std::string& word, const Host& host) {
    return host.throughHome(standardizedPath(absolutePath(word)));
}

std::variant<std::set<std::string>, WrongCall> selectedIds(const CleanupItems& items,
                                                           const SelectionWish& wish) {
    std::set<std::string> selected;
    std::vector<std::string> ids;
    for (const auto& item : items) {
        ids.push_back(item.target.id);
        if (isPreselected(item, wish)) selected.insert(item.target.id);
    }
    for (const auto* wanted : {&wish.only, &wish.also})
        for (const auto& id : *wanted) {
            const auto place = findById(ids, id, "item in this scan");
            if (const auto* wrong = std::get_if<WrongCall>(&place)) return *wrong;
            selected.insert(ids[std::get<std::size_t>(place)]);
        }
    return selected;
}

}  // namespace tidewell::cli
