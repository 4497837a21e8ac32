#include <algorithm>
#include <map>
#include <set>

#include "advisor/linux/linux_findings.h"
#include "kit/count_text.h"
#include "platform/disk_usage.h"
#include "platform/files.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

constexpr std::size_t longestMetadata = 256 * 1024;

using Names = std::vector<std::string>;

Names namesIn(const std::string& folder) {
    return folderNames(folder).value_or(Names{});
}

/// Something deployed, by its kind, name, architecture and branch: "runtime/org.x/x86_64/1.0".
struct Deployed {
    std::string ref;
    std::string folder;
    std::vector<std::string> uses;            ///< refs that its metadata names
    std::optional<std::string> extends = {};  ///< what it is an extension of
    bool isKnown = false;                     ///< whether there was metadata to read
};

std::string_view takeLine(std::string_view& text) {
    const auto line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    return line;
}

void readMetadata(Deployed& thing) {
    const auto text = readFile(joinPath(thing.folder, "active/metadata"), longestMetadata);
    thing.isKnown = text.has_value();
    if (!text) return;
    std::string_view group;
    for (std::string_view rest = *text; !rest.empty();) {
        const auto line = takeLine(rest);
        if (line.starts_with('[')) group = line;
        const auto value = line.substr(std::min(line.find('=') + 1, line.size()));
        const bool isMain = group == "[Application]" || group == "[Runtime]";
        if (isMain && (line.starts_with("runtime=") || line.starts_with("sdk=")))
            thing.uses.push_back("runtime/" + std::string(value));
        if (group == "[ExtensionOf]" && line.starts_with("ref=")) thing.extends = value;
    }
}

std::vector<Deployed> deployedIn(const std::string& installation, const std::string& kind) {
    std::vector<Deployed> found;
    const auto top = joinPath(installation, kind);
    for (const auto& name : namesIn(top))
        for (const auto& arch : namesIn(joinPath(top, name)))
            for (const auto& branch : namesIn(joinPath(top, name + "/" + arch))) {
                const auto ref = name + "/" + arch + "/" + branch;
                Deployed thing{.ref = kind + "/" + ref, .folder = joinPath(top, ref), .uses = {}};
                readMetadata(thing);
                found.push_back(std::move(thing));
            }
    return found;
}

/// What the refs that the user wants to keep begin with: flatpak has patterns of them in its
/// repository's settings. Absent if those cannot be read.
std::optional<Names> pinnedBeginnings(const std::string& installation) {
    const auto text = readFile(joinPath(installation, "repo/config"), longestMetadata);
    if (!text) return std::nullopt;
    Names beginnings;
    constexpr std::string_view key = "xa.pinned=";
    for (std::string_view rest = *text; !rest.empty();) {
        auto line = takeLine(rest);
        if (!line.starts_with(key)) continue;
        for (line.remove_prefix(key.size()); !line.empty();) {
            const auto pattern = line.substr(0, line.find(';'));
            line.remove_prefix(std::min(pattern.size() + 1, line.size()));
            const auto open = std::min(pattern.find('*'), pattern.find("//"));
            if (!pattern.empty()) beginnings.emplace_back(pattern.substr(0, open));
        }
    }
    return beginnings;
}

/// What the things in use name, and what extends those, and so on.
std::set<std::string> usedRefs(const std::vector<Deployed>& apps,
                               const std::vector<Deployed>& runtimes, const Names& pinned) {
    const auto isPinned = [&pinned](const std::string& ref) {
        return std::ranges::any_of(
            pinned, [&ref](const std::string& beginning) { return ref.starts_with(beginning); });
    };
    std::set<std::string> used;
    for (const auto& app : apps) {
        used.insert(app.ref);
        used.insert(app.uses.begin(), app.uses.end());
    }
    for (auto before = used.size() + 1; before != used.size();) {
        before = used.size();
        for (const auto& runtime : runtimes) {
            const bool isUsed = used.contains(runtime.ref) || isPinned(runtime.ref) ||
                                !runtime.isKnown ||
                                (runtime.extends && used.contains(*runtime.extends));
            if (!isUsed) continue;
            used.insert(runtime.ref);
            // What a runtime names beside itself is what it was built on.
            if (!runtime.extends) used.insert(runtime.uses.begin(), runtime.uses.end());
        }
    }
    return used;
}

}  // namespace

std::optional<Finding> unusedFlatpakRuntimes(const Host& host) {
    const auto installation = joinPath(host.baseFolders.data, "flatpak");
    const auto pinned = pinnedBeginnings(installation);
    if (!toolNamed(host, "flatpak") || !pinned) return std::nullopt;
    const auto runtimes = deployedIn(installation, "runtime");
    const auto used = usedRefs(deployedIn(installation, "app"), runtimes, *pinned);
    std::int64_t count = 0;
    ByteCount bytes = 0;
    for (const auto& runtime : runtimes) {
        if (used.contains(runtime.ref)) continue;
        ++count;
        bytes = addSaturating(bytes, allocatedSize(runtime.folder));
    }
    if (count == 0) return std::nullopt;
    return Finding{
        .id = "flatpak-runtimes",
        .symbol = "shippingbox",
        .title = "Unused Flatpak runtimes",
        .detail = countText(count, "runtime") +
                  " that none of your flatpaks uses any more. Flatpak downloads one again "
                  "if an app needs it.",
        .sizeBytes = bytes,
        .action = FindingAction::run,
        .actionLabel = "Uninstall",
        .command = "flatpak uninstall --user --unused --noninteractive",
        .runs = {{"flatpak", "uninstall", "--user", "--unused", "--noninteractive"}},
        .outcome = "Uninstalled the runtimes that no flatpak uses."};
}

}  // namespace tidewell
