#include "platform/host.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/environment.h"
#include "platform/files.h"
#include "platform/home_place.h"
#include "platform/own_program.h"
#include "platform/path_text.h"
#include "platform/posix/base_folders.h"
#include "platform/removal_lock.h"

namespace tidewell {

namespace {

HostResult failure(std::string problem) {
    return {.host = {}, .problem = std::move(problem)};
}

/// The path with all links resolved; absent if it is no existing folder.
std::optional<std::string> resolvedFolder(const std::string& path) {
    auto resolved = resolvedPath(path);
    if (!resolved || fileKind(*resolved) != FileKind::folder) return std::nullopt;
    return resolved;
}

bool isFolder(const std::string& path) {
    return fileKind(path) == FileKind::folder;
}

/// Where "/" is the root, everything lies below it.
bool liesBelowRoot(std::string_view path, std::string_view root) {
    return root == "/" || isBelow(path, root);
}

std::string ownHomeFolder() {
    if (auto home = environmentValue("HOME"); !home.empty()) return home;
    const auto* user = ::getpwuid(::getuid());
    return user && user->pw_dir ? user->pw_dir : "";
}

bool isUsersAlone(const std::string& folder) {
    struct stat status;
    return ::stat(folder.c_str(), &status) == 0 && status.st_uid == ::geteuid() &&
           !(status.st_mode & (S_IWGRP | S_IWOTH));
}

HomeOwner ownerOf(const std::string& home) {
    struct stat status;
    const bool isOwn = ::stat(home.c_str(), &status) == 0 && status.st_uid == ::geteuid();
    return isOwn ? HomeOwner::user : HomeOwner::somebodyElse;
}

/// Only a scratch folder of the user's own may ever be emptied: what others can write to is theirs
/// too. A relative one would be wherever the program happens to be started.
std::string ownTemporaryFolder(const std::string& home) {
    const auto wanted = environmentValue("TMPDIR");
    if (!wanted.starts_with('/')) return {};
    const auto folder = resolvedFolder(wanted);
    if (!folder || *folder == "/" || *folder == "/tmp" || isAtOrBelow(home, *folder)) return {};
    return isUsersAlone(*folder) ? *folder : std::string();
}

/// The first "var/folders/*/*/T" below `root` by byte order of the whole path, where it really
/// lies.
std::string temporaryFolderBelow(const std::string& root) {
    std::vector<std::string> found;
    const auto top = joinPath(root, "var/folders");
    for (const auto& first : folderNames(top).value_or(std::vector<std::string>{})) {
        const auto middle = joinPath(top, first);
        for (const auto& second : folderNames(middle).value_or(std::vector<std::string>{})) {
            const auto scratch = joinPath(joinPath(middle, second), "T");
            if (folderNames(scratch)) found.push_back(scratch);
        }
    }
    if (found.empty()) return {};
    const auto real = resolvedFolder(*std::ranges::min_element(found));
    return real && liesBelowRoot(*real, root) ? *real : std::string();
}

/// Where a machine keeps its users' home folders, and what lies there that is none.
struct HomeFolders {
    std::string_view holder;
    std::array<std::string_view, 2> others;
};

HomeFolders homeFolders(System system) {
    switch (system) {
        case System::macOS:
            return {.holder = "Users", .others = {"Shared", ""}};
        case System::linux:
            return {.holder = "home", .others = {"lost+found", "linuxbrew"}};
    }
    return {};
}

/// Hidden folders are no homes where the system keeps its own things beside them.
bool isHomeName(std::string_view name, const HomeFolders& folders, System system) {
    if (std::ranges::find(folders.others, name) != folders.others.end()) return false;
    return system == System::macOS || !name.starts_with('.');
}

/// The user's home folder on a machine that lies in a folder, or why it is not clear which it is.
HostResult homeBelow(Host host) {
    const auto places = homeFolders(host.system);
    const auto holder = joinPath(host.root, places.holder);
    std::vector<std::string> homes;
    for (const auto& name : folderNames(holder).value_or(std::vector<std::string>{}))
        if (isHomeName(name, places, host.system) && folderNames(joinPath(holder, name)))
            homes.push_back(joinPath(holder, name));
    const auto administrator = joinPath(host.root, "root");
    if (homes.empty() && host.system == System::linux && folderNames(administrator))
        homes.push_back(administrator);
    if (homes.empty()) return failure("There is no home folder below " + holder);
    if (homes.size() > 1)
        return failure("There are several home folders below " + holder + ": name one with --home");
    host.home = homes.front();
    return {.host = std::move(host), .problem = {}};
}

System systemBelow(const std::string& root) {
    const bool isMacOS =
        fileExists(joinPath(root, "Users")) || fileExists(joinPath(root, "System"));
    return isMacOS ? System::macOS : System::linux;
}

System systemOfHome(const std::string& home) {
    constexpr std::array<std::string_view, 3> signs = {"Library/Caches", "Library/Preferences",
                                                       "Library/Application Support"};
    const bool isMacOS = std::ranges::any_of(
        signs, [&](std::string_view sign) { return isFolder(joinPath(home, sign)); });
    return isMacOS ? System::macOS : ownSystem();
}

/// The home folder as it is named by the user or by his environment, or found below the root.
HostResult withHome(Host host, const HostOptions& options) {
    if (!options.home && options.root) return homeBelow(std::move(host));
    host.home = options.home ? *options.home : ownHomeFolder();
    if (!options.home && !host.home.starts_with('/'))
        return failure("The home folder \"" + host.home + "\" is no absolute path");
    return {.host = std::move(host), .problem = {}};
}

/// Resolves the home folder, and refuses one that would open what is not the user's.
HostResult withRealHome(Host host) {
    const auto named = host.home;
    const auto home = resolvedFolder(named);
    if (!home) return failure("There is no home folder " + named);
    if (*home == host.root || !liesBelowRoot(*home, host.root))
        return failure("The home folder " + *home + " does not lie below " + host.root);
    const auto place = host.root == "/" ? *home : home->substr(host.root.size());
    if (!canBeHome(place)) return failure(*home + " belongs to the system: it is no home folder");
    host.home = *home;
    if (const auto name = standardizedPath(absolutePath(named)); name != *home)
        host.namedHome = name;
    host.homeOwner = ownerOf(host.home);
    return {.host = std::move(host), .problem = {}};
}

void findScratchFolders(Host& host, const HostOptions& options) {
    if (!options.root && !options.home) {
        host.temporaryDirectory = ownTemporaryFolder(host.home);
    } else if (options.root && host.system == System::macOS) {
        host.temporaryDirectory = temporaryFolderBelow(host.root);
        const auto sibling = joinPath(parentPath(host.temporaryDirectory), "C");
        if (!host.temporaryDirectory.empty() && folderNames(sibling))
            host.userCacheDirectory = sibling;
    }
}

/// The program's own file is where the desktop keeps such files, also outside the home folder.
std::string ownConfigurationFolder(const Host& host, const HostOptions& options) {
    const auto configured = environmentValue("XDG_CONFIG_HOME");
    const bool isOwnMachine = !options.root && !options.home;
    if (isOwnMachine && configured.starts_with('/')) return joinPath(configured, "tidewell");
    return joinPath(host.home, ".config/tidewell");
}

}  // namespace

std::string Host::toolPath(std::string_view absolute) const {
    auto path = systemPath(absolute);
    const auto real = resolvedPath(path);
    return real && liesBelowRoot(*real, root) ? path : std::string();
}

HostResult findHost(const HostOptions& options) {
    Host host;
    host.ownBundle = {.identifier = "io.tidewell.Tidewell",
                      .version = TIDEWELL_VERSION,
                      .build = "1",
                      .path = ownProgram(),
                      .website = TIDEWELL_WEBSITE};
    const auto root = resolvedFolder(options.root.value_or("/"));
    if (!root) return failure("There is no folder " + *options.root);
    host.root = *root;
    if (options.root) host.system = options.system.value_or(systemBelow(host.root));
    auto found = withHome(std::move(host), options);
    if (found.host) found = withRealHome(std::move(*found.host));
    if (!found.host) return found;
    host = std::move(*found.host);
    if (!options.root) host.system = options.system.value_or(systemOfHome(host.home));
    const bool isOwnMachine = !options.root && !options.home;
    host.baseFolders = isOwnMachine ? posix::baseFoldersOfEnvironment(host.home, host.system)
                                    : posix::usualBaseFolders(host.home);
    findScratchFolders(host, options);
    host.configurationDirectory = ownConfigurationFolder(host, options);
    host.removals = removalsOn(host, makersTrial());
    return {.host = std::move(host), .problem = {}};
}

}  // namespace tidewell
