#include "performance/unit_file.h"

#include <algorithm>

#include "platform/path_text.h"

namespace tidewell {

namespace {

constexpr std::string_view blanks = " \t\r";

std::string_view trimmed(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

}  // namespace

void readUnitFile(UnitFile& unit, std::string_view text) {
    std::string_view section;
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size());
        const auto line = trimmed(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.starts_with('[')) section = line;
        const auto equals = line.find('=');
        if (equals == line.npos || line.starts_with('#') || line.starts_with(';')) continue;
        const auto key = trimmed(line.substr(0, equals));
        auto value = trimmed(line.substr(equals + 1));
        if (section == "[Unit]" && key == "Description") unit.description = value;
        if (section != "[Service]" || key != "ExecStart") continue;
        if (value.empty()) unit.command.clear();  // takes all earlier ones back
        if (!unit.command.empty()) continue;
        value.remove_prefix(std::min(value.find_first_not_of("@-:+!"), value.size()));
        unit.command = value;
    }
}

std::string unitFileName(std::string_view unit) {
    const auto instance = unit.find('@');
    if (instance == unit.npos) return std::string(unit);
    return std::string(unit.substr(0, instance + 1)) +
           std::string(unit.substr(extensionPosition(unit)));
}

}  // namespace tidewell
