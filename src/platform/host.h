#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tidewell {

/// The program's own bundle, settled at build time but for where it lies.
struct OwnBundle {
    std::string identifier;
    std::string version;
    std::string build;
    std::string path;  ///< what the file manager shows as the program itself
};

/// Where the machine lies: made once at start and handed by const reference to every scanner and
/// service. The whole program, removals included, thus runs against a machine that lies in a
/// folder. `root` and `home` are real locations, without links, "." or "..".
struct Host {
    std::string root;                    ///< folder in which absolute system paths are looked up
    std::string home;                    ///< the user's home folder
    std::string temporaryDirectory;      ///< the user's own scratch folder; empty if there is none
    std::string userCacheDirectory;      ///< its sibling for caches; empty if there is none
    std::string configurationDirectory;  ///< where the program keeps its own file
    OwnBundle ownBundle;

    /// The path below `root` of an absolute system path such as "/Applications".
    std::string systemPath(std::string_view absolute) const;
    /// A leading "~" replaced by `home`; every other path as it is.
    std::string expandTilde(std::string_view path) const;
    /// A path from one of the program's tables: below `home` if it begins with "~", else below
    /// `root`.
    std::string locate(std::string_view tablePath) const;
    /// `path` without `home` and its slash, for display; all of it if it lies elsewhere.
    std::string_view relativeToHome(std::string_view path) const;
};

/// Folders given on the command line.
struct HostOptions {
    std::optional<std::string> root;
    std::optional<std::string> home;
};

/// A host, or a sentence that says why there is none.
struct HostResult {
    std::optional<Host> host;
    std::string problem;
};

/// Finds the machine. With `root`, the home folder is the only one below its "Users" (but "Shared")
/// unless `home` names another, and the temporary folder is the first "var/folders/*/*/T" in byte
/// order. Without it, the machine is this one; its temporary folder counts only if it belongs to
/// the user and nobody else can write to it, and never if it is the shared one.
HostResult findHost(const HostOptions& options);

}  // namespace tidewell
