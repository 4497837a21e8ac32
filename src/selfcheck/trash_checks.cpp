#include "selfcheck/trash_checks.h"

#include <string>

#include "platform/path_text.h"
#include "selfcheck/trial_machine.h"

namespace tidewell::selfcheck {

namespace {

constexpr auto item = "Downloads/trial/film.mov";

/// Moves a new item of the same name to the Trash.
std::optional<TrashedItem> trashNew(TrialMachine& machine, Findings& findings) {
    machine.treasure(item);
    if (findings.isOver()) return std::nullopt;
    const auto trashing = machine.trash(item);
    if (!trashing.moved) {
        findings.notTried("nothing can be moved to the Trash: " + trashing.problem);
        return std::nullopt;
    }
    machine.follow(item, machine.relative(trashing.moved->path));
    return trashing.moved;
}

}  // namespace

void checkCollisions(const TrialGround& ground, Findings& findings) {
    TrialMachine machine(ground, "collisions", findings);
    const auto first = trashNew(machine, findings);
    if (!first) return;
    // Names that the Trash has without having given them.
    const auto entries = machine.relative(parentPath(first->path)) + "/";
    machine.treasure(entries + "film 2.mov");
    machine.treasure(entries + "film 4.mov/inside");
    for (int round = 0; round < 4 && !findings.isOver(); ++round)
        if (trashNew(machine, findings)) findings.strike();
    machine.treasure(item);
    if (findings.isOver()) return;

    findings.strike();
    if (putBack(*first, machine.host()).place)
        findings.fault("putting back took a place that was taken");
    machine.account("when a name was taken");
}

}  // namespace tidewell::selfcheck
