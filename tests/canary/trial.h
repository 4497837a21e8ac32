#pragma once

#include <string>
#include <vector>

#include "random_machine.h"
#include "snapshot.h"

namespace tidewell::test {

/// What is done to a machine.
enum class Verb {
    clean,
    cleanAmongOthers,  ///< while other programs work in the same folders
    cleanStolenFrom,   ///< while a folder that is emptied is taken away
    cleanKilled,       ///< killed on the way, and then once more
    cleanAtHome,       ///< without a root, in an odd environment
    dev,
    trash,
    uninstall,
    uninstallKilled,
};

/// What went wrong, a line each; empty if all that the rules do not allow to go stayed as it was.
using Findings = std::vector<std::string>;

/// The command line program, run against one machine after another.
class Trial {
 public:
    explicit Trial(std::string program) : program_(std::move(program)) {}

    /// As the catalogue has them.
    std::vector<std::string> cataloguePaths(System system) const;

    /// Looks with every command that only looks; all must stay as it is.
    Findings look(const RandomMachine& random) const;
    Findings run(Verb verb, RandomMachine& random);

    /// What all the runs together did: a canary that kills nothing proves nothing.
    struct Tally {
        long long freedBytes = 0;
        int removedEntries = 0;
        int trashed = 0;
        int putBack = 0;
        int uninstalled = 0;
        int swaps = 0;
        int thefts = 0;
        int kills = 0;
    };
    const Tally& tally() const { return tally_; }

 private:
    Findings clean(RandomMachine& random, Verb verb);
    Findings trash(RandomMachine& random);
    Findings putBack(const RandomMachine& random, const Snapshot& before,
                     const std::string& origin);
    Findings uninstall(RandomMachine& random, Verb verb);

    std::string program_;
    Tally tally_;
};

}  // namespace tidewell::test
