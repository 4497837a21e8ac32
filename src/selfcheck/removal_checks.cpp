#include "selfcheck/removal_checks.h"

#include "platform/files.h"
#include "selfcheck/trial_machine.h"

namespace tidewell::selfcheck {

namespace {

constexpr auto cache = ".cache/trial";

/// What every machine has that nothing may touch.
void layTreasures(TrialMachine& machine) {
    machine.treasure("Documents/Work/thesis");
    machine.treasure("Documents/Work/chapters/one");
    machine.treasure("Documents/letter");
    machine.treasure(".ssh/id_trial");
}

bool isEmpty(const TrialMachine& machine, std::string_view folder) {
    const auto names = folderNames(machine.path(folder));
    return names && names->empty();
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
        machine.link(std::string(cache) + "/" + name, target);
        machine.link(std::string(cache) + "/in/it/" + name, "../../" + std::string(target));
    }
    machine.link(".cache/behind", "../Documents/Work");
    if (findings.isOver()) return;

    if (machine.empty(cache, [&](const std::string&) { findings.strike(); }) != Removal::complete ||
        !isEmpty(machine, cache))
        findings.fault("links could not be removed");
    findings.strike();
    machine.empty(".cache/behind");
    if (machine.empty(".cache/behind/chapters"))
        findings.fault("what a link leads to was taken for a cache");
    machine.account("behind a link");
}

void checkSwaps(const TrialGround& ground, Findings& findings) {
    TrialMachine machine(ground, "swaps", findings);
    layTreasures(machine);
    constexpr int folders = 24;
    for (int number = 0; number < folders; ++number) {
        const auto name = std::string(cache) + "/" + std::to_string(number);
        machine.treasure(name + "/chapters/one");
        machine.treasure(name + "/thesis");
    }
    if (findings.isOver()) return;

    const auto swap = [&](const std::string& name) {
        const auto place = std::string(cache) + "/" + name;
        if (!machine.move(place, "aside/" + name)) return;
        machine.link(place, "../../Documents/Work");
        findings.strike();
    };
    if (!machine.empty(cache, swap)) findings.fault("a cache was refused");
    machine.account("when a folder was swapped for a link");
}

}  // namespace tidewell::selfcheck
