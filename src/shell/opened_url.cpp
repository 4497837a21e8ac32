#include "shell/opened_url.h"

#include <algorithm>

namespace tidewell {

namespace {

constexpr std::string_view hostMark = "://";

char lowerCase(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

}  // namespace

std::optional<std::string_view> urlHost(std::string_view url) {
    const auto scheme = url.substr(0, urlScheme.size());
    if (!std::ranges::equal(scheme, urlScheme, {}, lowerCase)) return std::nullopt;
    const auto rest = url.substr(scheme.size());
    if (!rest.starts_with(hostMark)) return std::nullopt;
    const auto behind = rest.substr(hostMark.size());
    const auto host = behind.substr(0, behind.find_first_of("/?#:"));
    if (host.empty()) return std::nullopt;
    return host;
}

}  // namespace tidewell
