#include "shell/mode.h"

#include <algorithm>

namespace tidewell {

std::string_view title(Mode mode) {
    switch (mode) {
        case Mode::home:
            return "Home";
        case Mode::clean:
            return "Clean";
        case Mode::devMode:
            return "Dev Mode";
        case Mode::apps:
            return "Apps";
        case Mode::performance:
            return "Performance";
        case Mode::deepScan:
            return "Deep Scan";
        case Mode::advisor:
            return "Advisor";
    }
    return {};
}

std::string_view symbol(Mode mode) {
    switch (mode) {
        case Mode::home:
            return "house.fill";
        case Mode::clean:
            return "sparkles";
        case Mode::devMode:
            return "chevron.left.forwardslash.chevron.right";
        case Mode::apps:
            return "square.grid.2x2.fill";
        case Mode::performance:
            return "speedometer";
        case Mode::deepScan:
            return "scope";
        case Mode::advisor:
            return "wand.and.stars";
    }
    return {};
}

SectionAccent accent(Mode mode) {
    switch (mode) {
        case Mode::home:
        case Mode::clean:
            return SectionAccent::green;
        case Mode::devMode:
            return SectionAccent::cyan;
        case Mode::apps:
            return SectionAccent::violet;
        case Mode::performance:
            return SectionAccent::teal;
        case Mode::deepScan:
            return SectionAccent::blue;
        case Mode::advisor:
            return SectionAccent::amber;
    }
    return defaultSectionAccent;
}

std::optional<Mode> modeNamed(std::string_view name) {
    const auto found = std::ranges::find(allModes, name, title);
    if (found == allModes.end()) return std::nullopt;
    return *found;
}

}  // namespace tidewell
