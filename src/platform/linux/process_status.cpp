#include "platform/linux/process_status.h"

#include <algorithm>
#include <vector>

#include "platform/linux/number_in.h"

namespace tidewell::linux_system {

std::optional<ProcessStatus> parseProcessStatus(std::string_view line) {
    const auto nameEnd = line.rfind(')');
    if (nameEnd == std::string_view::npos) return std::nullopt;
    // The fields behind the name, which is the second one.
    constexpr std::size_t stateField = 0;
    constexpr std::size_t parentField = 1;
    constexpr std::size_t startTimeField = 19;
    std::vector<std::string_view> fields;
    auto rest = line.substr(nameEnd + 1);
    while (fields.size() <= startTimeField) {
        const auto begin = rest.find_first_not_of(" \n");
        if (begin == std::string_view::npos) return std::nullopt;
        rest.remove_prefix(begin);
        fields.push_back(rest.substr(0, rest.find_first_of(" \n")));
        rest.remove_prefix(fields.back().size());
    }
    const auto start = numberIn<std::uint64_t>(fields[startTimeField]);
    const auto parent = numberIn<std::int32_t>(fields[parentField]);
    if (!start || !parent) return std::nullopt;
    return ProcessStatus{
        .state = fields[stateField].front(), .parent = *parent, .startTime = *start};
}

std::optional<ByteCount> labelledByteCount(std::string_view text, std::string_view label) {
    while (!text.empty()) {
        auto line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        if (!line.starts_with(label)) continue;
        line.remove_prefix(label.size());
        line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
        if (!line.ends_with(" kB")) return std::nullopt;
        const auto count = numberIn<std::uint32_t>(line.substr(0, line.size() - 3));
        return count ? std::optional(ByteCount{*count} * 1024) : std::nullopt;
    }
    return std::nullopt;
}

}  // namespace tidewell::linux_system
