#include "apps/helper_note.h"

#include <array>

namespace tidewell {

namespace {

enum class Field { name, bundleID };
enum class Match { beginsWith, contains, equals };

struct HelperRule {
    Field field;
    Match match;
    std::string_view text;
    std::string_view note;
};

constexpr std::string_view redGiantNote =
    "Red Giant plugin. Loads inside After Effects/Premiere, never opened directly.";
constexpr std::string_view adobeNote =
    "Part of Adobe's install/sync machinery. Required while you use Adobe apps.";

/// The first that applies wins.
constexpr std::array helperRules = {
    HelperRule{Field::name, Match::beginsWith, "Universe", redGiantNote},
    HelperRule{Field::bundleID, Match::contains, "redgiant", redGiantNote},
    HelperRule{Field::bundleID, Match::contains, "maxon.universe", redGiantNote},
    HelperRule{Field::name, Match::contains, "Media Encoder",
               "Renders exports for Premiere Pro & After Effects in the background. Keep it if you "
               "export video."},
    HelperRule{Field::name, Match::contains, "aescripts",
               "Manages After Effects plugins. Opened rarely by design."},
    HelperRule{Field::name, Match::contains, "Mister Horse",
               "Installs Animation Composer plugins for After Effects."},
    HelperRule{Field::name, Match::equals, "Creative Cloud", adobeNote},
    HelperRule{Field::name, Match::contains, "Adobe Content Synchronizer", adobeNote},
};

bool matches(std::string_view text, const HelperRule& rule) {
    switch (rule.match) {
        case Match::beginsWith:
            return text.starts_with(rule.text);
        case Match::contains:
            return text.find(rule.text) != std::string_view::npos;
        case Match::equals:
            return text == rule.text;
    }
    return false;
}

}  // namespace

std::optional<std::string_view> helperNote(std::string_view name,
                                           const std::optional<std::string>& bundleID) {
    for (const auto& rule : helperRules) {
        if (rule.field == Field::bundleID && !bundleID) continue;
        const auto text = rule.field == Field::name ? name : std::string_view(*bundleID);
        if (matches(text, rule)) return rule.note;
    }
    return std::nullopt;
}

}  // namespace tidewell
