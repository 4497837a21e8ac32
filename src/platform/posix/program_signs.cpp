#include "platform/posix/program_signs.h"

#include <algorithm>
#include <charconv>

#include "platform/desktop_entry.h"
#include "platform/path_text.h"

namespace tidewell::posix {

namespace {

bool contains(const std::vector<std::string>& names, std::string_view name) {
    return std::ranges::find(names, name) != names.end();
}

}  // namespace

std::optional<std::int32_t> lockHolder(std::string_view link, std::string_view hostName) {
    constexpr std::string_view firefoxMark = ":+";
    auto begin = link.rfind(firefoxMark);
    if (begin != std::string_view::npos) {
        begin += firefoxMark.size();
    } else {
        begin = link.rfind('-');
        if (begin == std::string_view::npos || link.substr(0, begin++) != hostName)
            return std::nullopt;
    }
    std::int32_t process = 0;
    const auto* end = link.data() + link.size();
    const auto [stop, error] = std::from_chars(link.data() + begin, end, process);
    if (error != std::errc() || stop != end || process <= 0) return std::nullopt;
    return process;
}

bool isExecutableOf(const ProgramSigns& program, std::string_view executable,
                    const std::vector<std::string>& arguments) {
    if (contains(program.executables, lastPathComponent(executable))) return true;
    if (!isLauncher(executable)) return false;
    return std::ranges::any_of(arguments, [&](const std::string& argument) {
        // A program's own place or its archive: "/opt/idea/bin/idea", "/usr/share/paint/paint.jar".
        return contains(program.executables, lastPathComponent(argument)) ||
               contains(program.executables, nameWithoutExtension(argument));
    });
}

}  // namespace tidewell::posix
