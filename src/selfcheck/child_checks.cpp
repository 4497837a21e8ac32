#include "selfcheck/child_checks.h"

#include <string>

#include "platform/path_text.h"
#include "selfcheck/child.h"
#include "selfcheck/trial_machine.h"

namespace tidewell::selfcheck {

namespace {

/// Whether the child died, as it was to.
bool isKilled(const ChildRun& run, Findings& findings) {
    if (run.end == ChildEnd::notTried) findings.notTried(run.why);
    return run.end == ChildEnd::killed;
}

void killRemovals(const TrialGround& ground, Findings& findings) {
    constexpr auto name = "kills-removal";
    TrialMachine machine(ground, name, findings);
    machine.treasure("Documents/Work/thesis");
    for (std::size_t number = 0; number < itemsMoved; ++number)
        machine.file(joinPath(trialCache, std::to_string(number)) + "/file");
    for (const int entry : {0, 1, 20}) {
        if (findings.isOver()) return;
        if (isKilled(playInChild(ground, name, removalPart, entry), findings)) findings.strike();
    }
    if (machine.empty(trialCache) != Removal::complete || !machine.isEmpty(trialCache))
        findings.fault("what a killed removal left could not be removed");
    machine.account("when a removal was killed");
}

/// Counts a kill only where some items had moved by then and others not.
void killMoves(const TrialGround& ground, Findings& findings) {
    constexpr auto name = "kills-moves";
    constexpr int needed = 5;
    constexpr int rounds = 40;
    TrialMachine machine(ground, name, findings);
    for (std::size_t number = 0; number < itemsMoved; ++number)
        machine.treasure(itemNumber(number));
    if (!findings.isOver() && isKilled(playInChild(ground, name, writePart), findings))
        findings.strike();
    std::size_t before = machine.findTrashed();
    machine.account("when its note was written");

    int struck = 0;
    std::int64_t moment = 500;  // microseconds, found by trying
    for (int round = 0; round < rounds && struck < needed && !findings.isOver(); ++round) {
        const bool areMoving = before <= itemsMoved / 2;
        const auto part = areMoving ? movesPart : returnsPart;
        const bool isDead = isKilled(playInChild(ground, name, part, moment), findings);
        const auto after = machine.findTrashed();
        machine.account("when a move to the Trash was killed");
        if (after == before) {
            moment *= 2;
        } else if (!isDead || after == (areMoving ? itemsMoved : 0)) {
            moment /= 2;
        } else {
            findings.strike();
            ++struck;
        }
        before = after;
    }
    if (struck < needed) findings.notTried("no child was caught in the middle");
}

}  // namespace

void checkKills(const TrialGround& ground, Findings& findings) {
    killRemovals(ground, findings);
    killMoves(ground, findings);
}

void checkMounts(const TrialGround& ground, Findings& findings) {
    constexpr auto name = "mounts";
    TrialMachine machine(ground, name, findings);
    machine.treasure(joinPath(mountedFolder, "thesis"));
    machine.treasure(joinPath(mountedFolder, "chapters/one"));
    machine.treasure("Documents/Work/chapters/one");
    for (const auto* place : mountPlaces) machine.folder(place);
    machine.folder(personalPlace);
    if (findings.isOver()) return;

    const auto run = playInChild(ground, name, mountsPart);
    if (run.end == ChildEnd::notTried) findings.notTried(run.why);
    if (run.end == ChildEnd::killed) findings.fault("the program broke down");
    if (run.end == ChildEnd::done) findings.strike();
    machine.account("where it was mounted in a cache");
}

}  // namespace tidewell::selfcheck
