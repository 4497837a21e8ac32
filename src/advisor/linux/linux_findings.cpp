#include "advisor/linux/linux_findings.h"

#include <algorithm>
#include <array>

#include "kit/byte_text.h"
#include "kit/count_text.h"
#include "platform/disk_usage.h"
#include "platform/files.h"
#include "platform/freed_usage.h"
#include "platform/path_text.h"
#include "platform/process.h"

namespace tidewell {

namespace {

constexpr ByteCount worthTelling = 1024 * 1024;
constexpr ByteCount journalKept = 500 * 1000 * 1000;

using Names = std::vector<std::string>;

Names namesIn(const std::string& folder) {
    return folderNames(folder).value_or(Names{});
}

/// The words of a command that are plain enough to be typed as they stand.
bool isPlain(std::string_view word) {
    constexpr std::string_view plain =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_.+:@/";
    return !word.empty() && word.find_first_not_of(plain) == word.npos;
}

std::optional<Finding> goModules(const Host& host) {
    const auto go = toolNamed(host, "go");
    if (!go) return std::nullopt;
    const auto run =
        runTool(*go, {"env", "GOMODCACHE"}, ToolOutput::keep, std::chrono::seconds(10));
    if (!run || run->exitStatus != 0) return std::nullopt;
    const auto said = standardizedPath(run->output.substr(0, run->output.find('\n')));
    const auto folder = host.pathNamedInside(said);
    if (!isBelow(folder, host.home)) return std::nullopt;
    const auto bytes = freedUsage(folder, host.system).freedBytes;
    if (bytes < worthTelling) return std::nullopt;
    return Finding{.id = "go-modules",
                   .symbol = "shippingbox",
                   .title = "Go modules",
                   .detail =
                       "Source of the packages that your Go projects use. Go downloads again "
                       "what a build needs.",
                   .sizeBytes = bytes,
                   .action = FindingAction::run,
                   .actionLabel = "Clean",
                   .command = "go clean -modcache",
                   .runs = {{"go", "clean", "-modcache"}},
                   .outcome = "Cleaned the Go modules."};
}

/// What projects use is linked into them, and stays.
std::optional<Finding> pnpmStore(const Host& host) {
    if (!toolNamed(host, "pnpm")) return std::nullopt;
    ByteCount bytes = 0;
    for (const auto* folder : {"{data}/pnpm/store", "~/.pnpm-store"})
        bytes = addSaturating(bytes, freedUsage(host.locate(folder), System::linux).freedBytes);
    if (bytes < worthTelling) return std::nullopt;
    return Finding{.id = "pnpm-store",
                   .symbol = "shippingbox",
                   .title = "pnpm store",
                   .detail =
                       "Packages that no project on this disk uses any more. pnpm downloads "
                       "again what it needs.",
                   .sizeBytes = bytes,
                   .action = FindingAction::run,
                   .actionLabel = "Prune",
                   .command = "pnpm store prune",
                   .runs = {{"pnpm", "store", "prune"}},
                   .outcome = "Pruned the pnpm store."};
}

std::optional<Finding> systemJournal(const Host& host) {
    const auto bytes = allocatedSize(host.systemPath("/var/log/journal"));
    if (bytes < journalKept + worthTelling) return std::nullopt;
    return Finding{.id = "system-journal",
                   .symbol = "clock.arrow.circlepath",
                   .title = "System journal",
                   .detail = "The system's log takes " + byteText(bytes) +
                             ". The newest 500 MB of it are more than most will ever read.",
                   .sizeBytes = bytes - journalKept,
                   .action = FindingAction::copy,
                   .command = "sudo journalctl --vacuum-size=500M"};
}

struct PackageCache {
    std::string_view folder;
    std::string_view command;
};

constexpr std::array packageCaches = {
    PackageCache{"/var/cache/apt/archives", "sudo apt-get clean"},
    PackageCache{"/var/cache/libdnf5", "sudo dnf clean packages"},
    PackageCache{"/var/cache/dnf", "sudo dnf clean packages"},
    PackageCache{"/var/cache/pacman/pkg", "sudo pacman -Sc"},
    PackageCache{"/var/cache/zypp/packages", "sudo zypper clean"},
};

std::optional<Finding> downloadedPackages(const Host& host) {
    for (const auto& [folder, command] : packageCaches) {
        const auto bytes = allocatedSize(host.systemPath(folder));
        if (bytes < worthTelling) continue;
        return Finding{.id = "downloaded-packages",
                       .symbol = "shippingbox",
                       .title = "Downloaded packages",
                       .detail =
                           "Packages that are installed already. They are downloaded again if "
                           "one must be reinstalled.",
                       .sizeBytes = bytes,
                       .action = FindingAction::copy,
                       .command = std::string(command)};
    }
    return std::nullopt;
}

/// The revision of "paint_12.snap", if that is one.
std::optional<std::string> revisionOf(std::string_view file, std::string_view name) {
    if (pathExtension(file) != "snap") return std::nullopt;
    const auto stem = nameWithoutExtension(file);
    return std::string(stem.substr(name.size() + 1));
}

/// Those that the snap's "current" does not lead to.
std::optional<Finding> oldSnapRevisions(const Host& host) {
    const auto folder = host.systemPath("/var/lib/snapd/snaps");
    std::int64_t count = 0;
    ByteCount bytes = 0;
    std::string command;
    for (const auto& file : namesIn(folder)) {
        const auto name = file.substr(0, file.find('_'));
        if (name == file || !isPlain(name)) continue;
        const auto revision = revisionOf(file, name);
        const auto current = resolvedPath(host.systemPath("/snap/" + name + "/current"));
        if (!revision || !isPlain(*revision) || !current) continue;
        if (lastPathComponent(*current) == *revision) continue;
        ++count;
        bytes = addSaturating(bytes, allocatedSize(joinPath(folder, file)));
        command += (command.empty() ? "" : " && ");
        command += "sudo snap remove " + name + " --revision=" + *revision;
    }
    if (count == 0) return std::nullopt;
    return Finding{.id = "old-snap-revisions",
                   .symbol = "clock.arrow.circlepath",
                   .title = "Old snap revisions",
                   .detail = countText(count, "revision") +
                             " that newer ones have replaced, kept for the way back.",
                   .sizeBytes = bytes,
                   .action = FindingAction::copy,
                   .command = std::move(command)};
}

constexpr std::array<std::string_view, 2> coreFolders = {"/var/lib/systemd/coredump", "/var/crash"};

std::optional<Finding> coreDumps(const Host& host) {
    std::int64_t count = 0;
    ByteCount bytes = 0;
    std::string files;
    for (const auto folder : coreFolders) {
        for (const auto& name : namesIn(host.systemPath(folder))) {
            const bool isDump = name.starts_with("core.") || name.ends_with(".crash");
            if (!isDump || !isPlain(name)) continue;
            ++count;
            bytes = addSaturating(bytes, allocatedSize(joinPath(host.systemPath(folder), name)));
            files += " " + joinPath(folder, name);
        }
    }
    if (count == 0) return std::nullopt;
    return Finding{.id = "core-dumps",
                   .symbol = "exclamationmark.triangle.fill",
                   .title = "Core dumps",
                   .detail = countText(count, "picture") +
                             " of a program's memory at the moment it crashed. Of use to whoever "
                             "looks for the fault.",
                   .sizeBytes = bytes,
                   .action = FindingAction::copy,
                   .command = "sudo rm" + files};
}

struct SnapshotStore {
    std::string_view folder;
    std::string_view manager;
};

constexpr std::array snapshotStores = {
    SnapshotStore{"/timeshift/snapshots", "Timeshift"},
    SnapshotStore{"/run/timeshift/backup/timeshift/snapshots", "Timeshift"},
    SnapshotStore{"/timeshift-btrfs/snapshots", "Timeshift"},
    SnapshotStore{"/.snapshots", "Snapper"},
};

std::optional<Finding> snapshots(const Host& host) {
    for (const auto& [folder, manager] : snapshotStores) {
        const auto count = static_cast<std::int64_t>(namesIn(host.systemPath(folder)).size());
        if (count == 0) continue;
        return Finding{.id = "system-snapshots",
                       .symbol = "clock.arrow.circlepath",
                       .title = "Snapshots",
                       .detail = countText(count, "snapshot") +
                                 " of the system. What they hold is free only once they are gone. "
                                 "Manage them in " +
                                 std::string(manager) + ".",
                       .sizeBytes = std::nullopt,
                       .severity = FindingSeverity::notice};
    }
    return std::nullopt;
}

}  // namespace

std::optional<std::string> toolNamed(const Host& host, std::string_view name) {
    constexpr std::array<std::string_view, 6> folders = {
        "/usr/local/bin", "/usr/bin", "/bin", "/snap/bin", "/usr/local/go/bin", "~/.local/bin",
    };
    for (const auto folder : folders) {
        const auto path = joinPath(folder, name);
        auto found = path.starts_with('~') ? host.locate(path) : host.toolPath(path);
        if (!found.empty() && isProgram(found)) return found;
    }
    return std::nullopt;
}

bool carryOut(const Host& host, const Finding& finding) {
    if (!host.mayRemove()) return false;
    return std::ranges::all_of(finding.runs, [&host](const std::vector<std::string>& words) {
        const auto tool = toolNamed(host, words.front());
        const auto run = tool
                             ? runTool(*tool, {words.begin() + 1, words.end()}, ToolOutput::discard)
                             : std::nullopt;
        return run && run->exitStatus == 0;
    });
}

std::vector<Finding> linuxFindings(const Host& host) {
    std::vector<Finding> found;
    for (auto* probe : {unusedFlatpakRuntimes, danglingPodmanImages, dockerLeftovers, goModules,
                        pnpmStore, systemJournal, downloadedPackages, unneededPackages,
                        oldSnapRevisions, coreDumps, snapshots})
        if (auto finding = probe(host)) found.push_back(*std::move(finding));
    return found;
}

}  // namespace tidewell
