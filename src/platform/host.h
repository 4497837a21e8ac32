#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/system.h"

namespace tidewell {

/// The program's own bundle, settled at build time but for where it lies.
struct OwnBundle {
    std::string identifier;
    std::string version;
    std::string build;
    std::string path;     ///< what the file manager shows as the program itself
    std::string website;  ///< its address, with a slash at the end; empty where there is none
};

/// The folders of a home in which programs keep what is theirs, by the XDG Base Directory rules.
/// Which machines have something there, the tables of the tools say.
struct BaseFolders {
    std::string cache;
    std::string config;
    std::string data;
    std::string state;
};

/// Whether the home folder is the user's own. Another's may be looked at and no more: what is moved
/// or stored there as somebody else is nothing that its owner could use again.
enum class HomeOwner { user, somebodyElse };

/// Whether removing is to be relied on here: see removal_lock.h.
enum class Removals { free, locked };

/// Where the machine lies: made once at start and handed by const reference to every scanner and
/// service. The whole program, removals included, thus runs against a machine that lies in a
/// folder. `root` and `home` are real locations, without links, "." or "..".
struct Host {
    System system = System::macOS;  ///< which one laid the machine out
    std::string root;               ///< folder in which absolute system paths are looked up
    std::string home;               ///< the user's home folder
    std::string namedHome;  ///< what the user or his environment calls it, if links lead from there
    HomeOwner homeOwner = HomeOwner::user;
    Removals removals = Removals::free;
    BaseFolders baseFolders;
    std::string temporaryDirectory;      ///< the user's own scratch folder; empty if there is none
    std::string userCacheDirectory;      ///< its sibling for caches; empty if there is none
    std::string configurationDirectory;  ///< where the program keeps its own file
    OwnBundle ownBundle;

    /// Whether anything of it may be removed or moved to a Trash; asked by every guard, and before
    /// any tool is run that removes something.
    bool mayRemove() const { return homeOwner == HomeOwner::user && removals == Removals::free; }
    /// The path below `root` of an absolute system path such as "/Applications".
    std::string systemPath(std::string_view absolute) const;
    /// The same for a program to be started; empty if what stands there is missing or really lies
    /// outside `root`.
    std::string toolPath(std::string_view absolute) const;
    /// An absolute path that a file of the machine names: as it stands if it lies below `root`,
    /// else looked up there; through `home`.
    std::string pathNamedInside(std::string_view absolute) const;
    /// The same path, beginning with `home` where it begins with `namedHome`: as other programs,
    /// and the user, name what lies there.
    std::string throughHome(std::string_view path) const;
    /// What `expand` puts together: the folder that a path names first, and the rest behind it.
    struct Split {
        std::string_view folder;  ///< empty if it names none
        std::string_view rest;
    };
    Split split(std::string_view path) const;
    /// A leading "~" replaced by `home`, and a leading "{cache}", "{config}", "{data}" or "{state}"
    /// by that base folder; every other path as it is.
    std::string expand(std::string_view path) const;
    /// A path from one of the program's tables: expanded if it begins with "~" or a base folder,
    /// else below `root`.
    std::string locate(std::string_view tablePath) const;
    /// `path` without `home` and its slash, for display; all of it if it lies elsewhere.
    std::string_view relativeToHome(std::string_view path) const;
};

/// What is given on the command line.
struct HostOptions {
    std::optional<std::string> root = std::nullopt;
    std::optional<std::string> home = std::nullopt;
    std::optional<System> system = std::nullopt;
};

/// A host, or a sentence that says why there is none.
struct HostResult {
    std::optional<Host> host;
    std::string problem;
};

/// Finds the machine.
///
/// Without `root` it is this one. Its home folder is `home`, else what HOME says, else what the
/// user's account says. Its system is the one whose folders lie in the home folder, else the one
/// that the program was built for. Its temporary folder is what TMPDIR says if neither folder is
/// given: an absolute path of a folder that belongs to the user, that nobody else can write to, and
/// that is neither the shared one nor holds the home folder.
///
/// With `root`, the machine lies in that folder. A "Users" or "System" in it says that it is of
/// macOS. The home folder is `home` or the only one there is, in "Users" but "Shared", or in "home"
/// and then "root"; the temporary folder is the first "var/folders/*/*/T" in byte order. Everything
/// found must really lie below `root`.
///
/// A home folder that is relative, the root itself or one of the system's own is refused. Base
/// folders are those of the environment, without `root` and `home`, where they lie in the home
/// folder and in none of the user's own or of each other; else the usual ones.
HostResult findHost(const HostOptions& options);

}  // namespace tidewell
