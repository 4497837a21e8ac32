#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/host.h"

namespace tidewell {

/// The signs by which a program is known while it runs; any one of them is enough.
struct ProgramSigns {
    std::string name;                           ///< as its users call it
    std::vector<std::string> executables = {};  ///< file names
    std::vector<std::string> flatpaks = {};     ///< application ids
    std::vector<std::string> snaps = {};        ///< names
    std::vector<std::string> lockFiles = {};    ///< absolute paths
    std::vector<std::string> folders = {};      ///< in which none but the program keeps files open
};

/// Which programs of the user run at this moment, seen once. Below a root other than "/" only
/// processes count whose executable lies there. What ends meanwhile, and what the system hides, is
/// passed over. Any thread.
class RunningPrograms {
 public:
    explicit RunningPrograms(const Host& host);

    /// The first of the programs that runs:
    ///   - an executable of it runs, from wherever it was installed, or a program for running
    ///   others
    ///     (java, electron) that was started with one of those names or has a file open in one of
    ///     the folders;
    ///   - the desktop put a process into the group of its flatpak or snap;
    ///   - one of its locks names a process that runs and is older than the lock. What a crash or
    ///     another machine left behind is no lock.
    std::optional<std::string> firstRunning(const std::vector<ProgramSigns>& programs) const;

 private:
    struct Seen;
    std::shared_ptr<const Seen> seen_;
};

/// What programs of the user have open at this moment, seen once; this program's own is left out.
/// Of which processes, and what is passed over, as above. Any thread.
class OpenFiles {
 public:
    explicit OpenFiles(const Host& host);

    /// Whether one of them is `folder`, which is a real path, or lies below it.
    bool areIn(const std::string& folder) const;

 private:
    std::vector<std::string> paths_;
};

}  // namespace tidewell
