#include "platform/host.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <vector>

#include "platform/files.h"
#include "platform/own_program.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

std::string environmentValue(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

/// The path with all links resolved; absent if it is no existing folder.
std::optional<std::string> resolvedFolder(const std::string& path) {
    const std::unique_ptr<char, void (*)(void*)> resolved(::realpath(path.c_str(), nullptr),
                                                          std::free);
    if (!resolved || fileKind(resolved.get()) != FileKind::folder) return std::nullopt;
    return resolved.get();
}

std::string ownHomeFolder() {
    if (auto home = environmentValue("HOME"); !home.empty()) return home;
    const auto* user = ::getpwuid(::getuid());
    return user && user->pw_dir ? user->pw_dir : "";
}

/// Only a scratch folder of the user's own may ever be emptied: what others can write to is theirs
/// too.
std::string ownTemporaryFolder() {
    const auto folder = resolvedFolder(environmentValue("TMPDIR"));
    struct stat status;
    if (!folder || *folder == "/tmp" || *folder == "/") return {};
    if (::stat(folder->c_str(), &status) != 0 || status.st_uid != ::getuid()) return {};
    return status.st_mode & (S_IWGRP | S_IWOTH) ? std::string() : *folder;
}

/// The first "var/folders/*/*/T" below `root` by byte order of the whole path.
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
    return found.empty() ? std::string() : *std::ranges::min_element(found);
}

/// The user's home folder on a machine that lies in a folder, or why it is not clear which it is.
HostResult homeBelow(Host host) {
    const auto users = joinPath(host.root, "Users");
    std::vector<std::string> homes;
    for (const auto& name : folderNames(users).value_or(std::vector<std::string>{}))
        if (name != "Shared" && folderNames(joinPath(users, name)))
            homes.push_back(joinPath(users, name));
    if (homes.empty()) return {.host = {}, .problem = "There is no home folder below " + users};
    if (homes.size() > 1)
        return {
            .host = {},
            .problem = "There are several home folders below " + users + ": name one with --home"};
    host.home = homes.front();
    return {.host = std::move(host), .problem = {}};
}

std::string ownConfigurationFolder(const Host& host, const HostOptions& options) {
    const auto configured = environmentValue("XDG_CONFIG_HOME");
    const bool isOwnMachine = !options.root && !options.home;
    if (isOwnMachine && configured.starts_with('/')) return joinPath(configured, "tidewell");
    return joinPath(host.home, ".config/tidewell");
}

HostResult failure(std::string problem) {
    return {.host = {}, .problem = std::move(problem)};
}

}  // namespace

std::string Host::systemPath(std::string_view absolute) const {
    return root == "/" ? std::string(absolute) : root + std::string(absolute);
}

std::string Host::expandTilde(std::string_view path) const {
    if (path == "~") return home;
    return path.starts_with("~/") ? joinPath(home, path.substr(2)) : std::string(path);
}

std::string Host::locate(std::string_view tablePath) const {
    return tablePath.starts_with('~') ? expandTilde(tablePath) : systemPath(tablePath);
}

std::string_view Host::relativeToHome(std::string_view path) const {
    return pathRelativeTo(path, home);
}

HostResult findHost(const HostOptions& options) {
    Host host;
    host.ownBundle = {.identifier = "io.tidewell.Tidewell",
                      .version = TIDEWELL_VERSION,
                      .build = "1",
                      .path = ownProgram()};
    const auto root = resolvedFolder(options.root.value_or("/"));
    if (!root) return failure("There is no folder " + *options.root);
    host.root = *root;
    if (options.home || !options.root) {
        const auto wanted = options.home ? *options.home : ownHomeFolder();
        const auto home = resolvedFolder(wanted);
        if (!home) return failure("There is no home folder " + wanted);
        host.home = *home;
    } else {
        auto found = homeBelow(std::move(host));
        if (!found.host) return found;
        host = std::move(*found.host);
    }
    if (options.root) {
        host.temporaryDirectory = temporaryFolderBelow(host.root);
        const auto sibling = joinPath(parentPath(host.temporaryDirectory), "C");
        if (!host.temporaryDirectory.empty() && folderNames(sibling))
            host.userCacheDirectory = sibling;
    } else {
        host.temporaryDirectory = ownTemporaryFolder();
    }
    host.configurationDirectory = ownConfigurationFolder(host, options);
    return {.host = std::move(host), .problem = {}};
}

}  // namespace tidewell
