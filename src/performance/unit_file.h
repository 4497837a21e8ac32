#pragma once

#include <string>
#include <string_view>

namespace tidewell {

/// What the file of a unit says of itself; empty for what it does not say.
struct UnitFile {
    std::string description;
    std::string
        command;  ///< of the first "ExecStart" that holds, without the marks before its program
};

/// Reads a unit's file, or one that adds to it, over what the earlier ones said.
void readUnitFile(UnitFile& unit, std::string_view text);

/// The file of a unit's name: "mail@work.service" is made of "mail@.service".
std::string unitFileName(std::string_view unit);

}  // namespace tidewell
