// canary PROGRAM [--machines N] [--seed N] [--until-loss]: lays out random machines, lets the
// command line program loose on them, and looks for whatever is gone that the rules do not allow to
// go. A finding names its seed: `--machines 1 --seed N` shows it again. Ends with 1 if there was
// one, or if the program removed so little that nothing was proven.

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>

#include "support/temporary_folder.h"
#include "trial.h"

namespace {

using namespace tidewell::test;

namespace fs = std::filesystem;

constexpr Verb verbs[] = {Verb::clean,
                          Verb::cleanAmongOthers,
                          Verb::cleanStolenFrom,
                          Verb::cleanStolenFrom,
                          Verb::cleanKilled,
                          Verb::cleanAtHome,
                          Verb::dev,
                          Verb::trash,
                          Verb::trash,
                          Verb::uninstall,
                          Verb::uninstallKilled};

struct Call {
    std::string program;
    unsigned machines = 60;
    unsigned seed = 1;
    bool endsWithFirstLoss = false;
};

Call parse(int count, char** words) {
    Call call;
    for (int i = 1; i < count; ++i) {
        const std::string word = words[i];
        if (word == "--machines" && i + 1 < count)
            call.machines = static_cast<unsigned>(std::stoul(words[++i]));
        else if (word == "--seed" && i + 1 < count)
            call.seed = static_cast<unsigned>(std::stoul(words[++i]));
        else if (word == "--until-loss")
            call.endsWithFirstLoss = true;
        else
            call.program = word;
    }
    return call;
}

bool canMount() {
    return ::geteuid() == 0 && ::unshare(CLONE_NEWNS) == 0 &&
           ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

/// A copy that everybody can start, wherever the build lies.
std::string copyForAll(const std::string& program, const std::string& folder) {
    fs::permissions(folder, fs::perms(0755));
    const auto copy = folder + "/tidewell-cli";
    fs::copy_file(program, copy);
    fs::permissions(copy, fs::perms(0755));
    return copy;
}

Findings tryMachine(Trial& trial, unsigned seed, bool mounts) {
    const bool isSuperuser = mounts && seed % 3 == 0;
    const auto system = seed % 2 == 0 ? tidewell::System::linux : tidewell::System::macOS;
    RandomMachine random(seed, system, isSuperuser ? User::superuser : User::ordinary,
                         trial.cataloguePaths(system));
    auto findings = trial.look(random);
    for (int i = 0; i < 2 && findings.empty(); ++i) {
        const auto verb = random.chance.oneOf(verbs);
        for (const auto& finding : trial.run(verb, random))
            findings.push_back("verb " + std::to_string(static_cast<int>(verb)) + ": " + finding);
    }
    return findings;
}

bool hasProvenSomething(const Trial::Tally& tally, unsigned machines) {
    return machines < 50 ||
           (tally.removedEntries > 0 && tally.trashed > 0 && tally.putBack > 0 &&
            tally.uninstalled > 0 && tally.swaps > 0 && tally.thefts > 0 && tally.kills > 0);
}

}  // namespace

int main(int count, char** words) {
    const auto call = parse(count, words);
    if (call.program.empty()) {
        std::cerr << "Usage: canary PROGRAM [--machines N] [--seed N] [--until-loss]\n";
        return 2;
    }
    const TemporaryFolder folder;
    Trial trial(copyForAll(call.program, folder.path()));
    const bool mounts = canMount();
    std::cout << "canary: " << call.machines << " machines from seed " << call.seed
              << (mounts ? "" : ", without mounts") << std::endl;
    unsigned bad = 0;
    for (unsigned seed = call.seed; seed < call.seed + call.machines; ++seed) {
        const auto findings = tryMachine(trial, seed, mounts);
        bad += !findings.empty();
        for (const auto& finding : findings)
            std::cout << "seed " << seed << ": " << finding << '\n';
        if (bad > 0 && call.endsWithFirstLoss) break;
    }
    const auto& tally = trial.tally();
    std::cout << "canary: removed " << tally.removedEntries << " entries with " << tally.freedBytes
              << " bytes, moved " << tally.trashed << " items and " << tally.uninstalled
              << " applications to the Trash, put " << tally.putBack << " back, met " << tally.swaps
              << " swaps and " << tally.thefts << " thefts, was killed " << tally.kills
              << " times; " << bad << " machines with losses\n";
    return bad == 0 && hasProvenSomething(tally, call.machines) ? EXIT_SUCCESS : EXIT_FAILURE;
}
