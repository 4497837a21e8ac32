#include "selfcheck/removal_checks.h"

#include <algorithm>
#include <set>
#include <string>

#include "cleanup/kept_entries.h"
#include "platform/files.h"
#include "platform/path_text.h"
#include "selfcheck/trial_machine.h"

namespace tidewell::selfcheck {

namespace {

constexpr auto cache = ".cache/trial";
constexpr auto permissions = "permissions";
constexpr const char* closedFolders[] = {"closed", "fixed"};

std::string inCache(std::string_view name) {
    return joinPath(cache, name);
}

/// What every machine has that nothing may touch.
void layTreasures(TrialMachine& machine) {
    machine.treasure("Documents/Work/thesis");
    machine.treasure("Documents/Work/chapters/one");
    machine.treasure("Documents/letter");
    machine.treasure(".ssh/id_trial");
}

/// Asks the engine for each place that no removal may come near, as if a row named it.
void askForAllThatIsKept(const TrialGround& ground, Findings& findings) {
    TrialMachine machine(ground, "kept", findings);
    const auto kept = keptEntries(machine.host());
    std::set<std::string> places;
    for (const auto* list : {&kept.personalFolders, &kept.keys, &kept.profiles, &kept.neverSwept})
        for (auto place : *list) {
            std::ranges::replace(place, '*', 'x');
            if (isBelow(place, machine.host().home)) places.insert(machine.relative(place));
        }
    for (const auto& place : places) machine.treasure(joinPath(place, "inside/treasure"));
    if (findings.isOver()) return;
    for (const auto& place : places) {
        machine.removeSingle(joinPath(place, "inside/treasure"));
        machine.empty(joinPath(place, "inside"));
        machine.empty(place);
        findings.strike();
    }
    machine.account("though nothing may come near it");
}

}  // namespace

void checkLinks(const TrialGround& ground, Findings& findings) {
    TrialMachine machine(ground, "links", findings);
    layTreasures(machine);
    const std::string_view targets[] = {"../../Documents",
                                        "../../Documents/letter",
                                        "../../Documents/Work/chapters",
                                        "../../.ssh",
                                        "../..",
                                        "nowhere",
                                        "itself"};
    int number = 0;
    for (const auto target : targets) {
        const auto name = std::to_string(number++);
        machine.link(inCache(name), target);
        machine.link(inCache("in/it/" + name), "../../" + std::string(target));
    }
    machine.link(".cache/behind", "../Documents/Work");
    if (findings.isOver()) return;

    if (machine.empty(cache, [&](const std::string&) { findings.strike(); }) != Removal::complete ||
        !machine.isEmpty(cache))
        findings.fault("links could not be removed");
    findings.strike();
    machine.empty(".cache/behind");
    if (machine.empty(".cache/behind/chapters"))
        findings.fault("what a link leads to was taken for a cache");
    machine.account("behind a link");
}

void checkKept(const TrialGround& ground, Findings& findings) {
    askForAllThatIsKept(ground, findings);
    TrialMachine machine(ground, "keys", findings);
    layTreasures(machine);
    machine.treasure(inCache("vault/key"));
    machine.treasure(inCache("safe/deep/key"));
    machine.link(".ssh/elsewhere", "../.cache/trial/vault");
    machine.link(".ssh/deep", "../.cache/trial/safe/deep/key");
    machine.file(inCache("plain"));
    if (findings.isOver()) return;

    machine.empty(cache, [&](const std::string&) { findings.strike(); });
    if (fileExists(machine.path(inCache("plain")))) findings.fault("a cache could not be emptied");
    machine.account("though links in a folder of keys lead there");
    machine.takeForScratch("Documents");
    machine.empty("Documents/Work");
    machine.removeSingle("Documents/letter");
    machine.account("though it lies in a personal folder");
}

void checkSwaps(const TrialGround& ground, Findings& findings) {
    TrialMachine machine(ground, "swaps", findings);
    layTreasures(machine);
    constexpr int folders = 24;
    for (int number = 0; number < folders; ++number) {
        machine.treasure(inCache(std::to_string(number)) + "/chapters/one");
        machine.treasure(inCache(std::to_string(number)) + "/thesis");
    }
    machine.treasure(".cache/single/letter");
    if (findings.isOver()) return;

    const auto swap = [&](const std::string& folder, std::string_view target) {
        if (machine.swap(folder, target)) findings.strike();
    };
    machine.empty(cache,
                  [&](const std::string& name) { swap(inCache(name), "../../Documents/Work"); });
    machine.removeSingle(".cache/single/letter", [&] { swap(".cache/single", "../Documents"); });
    machine.account("when a folder was swapped for a link");
}

void checkMovesOut(const TrialGround& ground, Findings& findings) {
    // More than all threads may have in hand between two looks at where they are.
    constexpr std::size_t inHand = 8 * 64;
    constexpr std::size_t files = 3 * inHand;
    for (const bool isFolderAbove : {false, true}) {
        TrialMachine machine(ground, isFolderAbove ? "moves-above" : "moves", findings);
        for (std::size_t number = 0; number < files; ++number)
            machine.treasure(inCache(std::to_string(number)));
        if (findings.isOver()) return;

        bool isGone = false;
        const auto result = machine.empty(cache, [&](const std::string&) {
            if (isGone) return;
            isGone = machine.move(isFolderAbove ? ".cache" : cache, "Documents/Taken");
            machine.folder(cache);
            findings.strike();
        });
        if (result != Removal::incomplete)
            findings.fault("a cache that was moved away is not named");
        machine.account("with a folder that was moved away", inHand);
    }
}

void checkPermissions(const TrialGround& ground, Findings& findings) {
    TrialMachine machine(ground, permissions, findings);
    layTreasures(machine);
    for (const auto* folder : closedFolders) machine.treasure(inCache(folder) + "/inside");
    machine.file(inCache("plain"));
    if (findings.isOver()) return;
    machine.setAccess(inCache(closedFolders[0]), Access::none);
    machine.setAccess(inCache(closedFolders[1]), Access::reading);
    if (fileExists(machine.path(inCache(closedFolders[0]) + "/inside")))
        findings.notTried("no folder can be closed to this user here");

    if (!findings.isOver()) {
        const auto result = machine.empty(cache, [&](const std::string&) { findings.strike(); });
        if (result != Removal::incomplete) findings.fault("what is closed is said to be gone");
        if (fileExists(machine.path(inCache("plain"))))
            findings.fault("what lies beside a closed folder was not removed");
    }
    openClosedFolders(ground);
    machine.account("in a closed folder");
}

void openClosedFolders(const TrialGround& ground) {
    for (const auto* folder : closedFolders)
        ground.setAccess(TrialMachine::onGround(permissions, inCache(folder)), Access::all);
}

}  // namespace tidewell::selfcheck
