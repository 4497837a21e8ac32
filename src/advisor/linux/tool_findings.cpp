#include <algorithm>
#include <array>
#include <limits>
#include <locale>
#include <sstream>

#include "advisor/linux/linux_findings.h"
#include "apps/linux/debian_packages.h"
#include "apps/linux/removal_command.h"
#include "kit/count_text.h"
#include "platform/files.h"
#include "platform/json.h"
#include "platform/process.h"

namespace tidewell {

namespace {

constexpr std::chrono::seconds probeLimit{10};

/// What a tool wrote, if it is there and ended well in time.
std::optional<std::string> answerOf(const Host& host, std::string_view tool,
                                    const std::vector<std::string>& arguments) {
    const auto path = toolNamed(host, tool);
    if (!path) return std::nullopt;
    auto run = runTool(*path, arguments, ToolOutput::keep, probeLimit);
    if (!run || run->exitStatus != 0) return std::nullopt;
    return std::move(run->output);
}

ByteCount integerAt(const Value& record, std::string_view key) {
    const auto* member = record.find(key);
    const auto* integer = member ? member->integer() : nullptr;
    return integer ? std::max<ByteCount>(*integer, 0) : 0;
}

/// With a point, whatever the user's language has. Not every library reads such a number from
/// characters.
std::optional<double> numberIn(std::string_view digits) {
    std::istringstream text{std::string(digits)};
    text.imbue(std::locale::classic());
    double number = 0;
    const bool isNumber = text >> number && text.peek() == std::istringstream::traits_type::eof();
    return isNumber ? std::optional(number) : std::nullopt;
}

std::string_view takeLine(std::string_view& text) {
    const auto line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    return line;
}

}  // namespace

ByteCount dockerSize(std::string_view text) {
    const auto digits = text.substr(0, text.find_first_not_of("0123456789.e+"));
    const auto number = numberIn(digits);
    if (!number) return 0;
    text.remove_prefix(digits.size());
    text = text.substr(0, text.find(' '));
    constexpr std::array<std::pair<std::string_view, double>, 6> units = {
        {{"B", 1}, {"kB", 1e3}, {"KB", 1e3}, {"MB", 1e6}, {"GB", 1e9}, {"TB", 1e12}}};
    for (const auto& [unit, factor] : units)
        if (text == unit && *number * factor < 0x1p62)
            return static_cast<ByteCount>(*number * factor);
    return 0;
}

std::optional<Finding> danglingPodmanImages(const Host& host) {
    const auto answer =
        answerOf(host, "podman", {"images", "--filter", "dangling=true", "--format", "json"});
    const auto images = answer ? parseJson(*answer) : std::nullopt;
    if (!images || !images->list() || images->list()->empty()) return std::nullopt;
    ByteCount bytes = 0;
    for (const auto& image : *images->list())
        bytes = addSaturating(
            bytes,
            std::max<ByteCount>(integerAt(image, "Size") - integerAt(image, "SharedSize"), 0));
    return Finding{.id = "podman-images",
                   .symbol = "shippingbox",
                   .title = "Podman images without a name",
                   .detail = countText(static_cast<std::int64_t>(images->list()->size()), "image") +
                             " that newer builds have replaced. No container uses them.",
                   .sizeBytes = bytes,
                   .action = FindingAction::run,
                   .actionLabel = "Prune",
                   .command = "podman image prune --force",
                   .runs = {{"podman", "image", "prune", "--force"}},
                   .outcome = "Pruned the podman images."};
}

/// Asks only where the daemon listens for this user; the tool would wait for it.
std::optional<Finding> dockerLeftovers(const Host& host) {
    if (!fileExists(host.systemPath("/var/run/docker.sock"))) return std::nullopt;
    const auto images =
        answerOf(host, "docker", {"images", "--filter", "dangling=true", "--format", "{{.Size}}"});
    const auto usage =
        answerOf(host, "docker", {"system", "df", "--format", "{{.Type}}\t{{.Reclaimable}}"});
    if (!images || !usage) return std::nullopt;
    ByteCount bytes = 0;
    for (std::string_view rest = *images; !rest.empty();)
        bytes = addSaturating(bytes, dockerSize(takeLine(rest)));
    constexpr std::string_view cache = "Build Cache\t";
    for (std::string_view rest = *usage; !rest.empty();)
        if (auto line = takeLine(rest); line.starts_with(cache))
            bytes = addSaturating(bytes, dockerSize(line.substr(cache.size())));
    if (bytes == 0) return std::nullopt;
    return Finding{.id = "docker-leftovers",
                   .symbol = "shippingbox",
                   .title = "Docker's build cache and images without a name",
                   .detail =
                       "Layers of earlier builds, which the next build makes again. Images "
                       "with a name, containers and volumes stay.",
                   .sizeBytes = bytes,
                   .action = FindingAction::run,
                   .actionLabel = "Prune",
                   .command = "docker builder prune --force && docker image prune --force",
                   .runs = {{"docker", "builder", "prune", "--force"},
                            {"docker", "image", "prune", "--force"}},
                   .outcome = "Pruned Docker's build cache and images."};
}

std::optional<Finding> unneededPackages(const Host& host) {
    const auto answer = answerOf(host, "apt-get", {"-s", "-q", "autoremove"});
    const auto removals = answer ? rehearsedRemovals(*answer) : std::vector<std::string>();
    if (removals.empty()) return std::nullopt;
    const auto packages = installedPackages(host);
    ByteCount bytes = 0;
    for (const auto& name : removals)
        if (const auto package = packages.find(name); package != packages.end())
            bytes = addSaturating(bytes, package->second.sizeBytes);
    const auto kernels = std::ranges::count_if(
        removals, [](const std::string& name) { return name.starts_with("linux-image-"); });
    Finding finding{.id = "unneeded-packages",
                    .symbol = "shippingbox",
                    .title = "Packages nobody needs any more",
                    .detail = countText(static_cast<std::int64_t>(removals.size()), "package") +
                              " that came along with others which are gone by now",
                    .sizeBytes = bytes,
                    .action = FindingAction::copy,
                    .command = "sudo apt-get autoremove --purge"};
    finding.detail += kernels > 0 ? ", " + countText(kernels, "old kernel") + " among them." : ".";
    if (const auto needed = neededByDesktop(removals); !needed.empty()) {
        finding.severity = FindingSeverity::warning;
        finding.detail += " Don't, unless you mean it: your desktop needs " + needed.front() +
                          ", which would go.";
    }
    return finding;
}

}  // namespace tidewell
