#include "selfcheck/trash_checks.h"

#include <optional>
#include <string>
#include <vector>

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

/// Where a machine of this system has its Trash, and in it the entries.
std::vector<std::string> trashPlaces(const TrialGround& ground, Findings& findings) {
    TrialMachine machine(ground, "trash", findings);
    const auto moved = trashNew(machine, findings);
    if (!moved) return {};
    return {machine.relative(moved->folder), machine.relative(parentPath(moved->path))};
}

void checkTrashThatIsALink(const TrialGround& ground, const std::string& place,
                           Findings& findings) {
    TrialMachine machine(ground, "trash-link-" + std::to_string(place.size()), findings);
    machine.treasure("Documents/letter");
    machine.treasure(item);
    machine.link(place, machine.path("Documents"));
    if (findings.isOver()) return;
    findings.strike();
    if (machine.trash(item).moved) findings.fault("a Trash that is a link was used");
    machine.account("through a Trash that is a link");
}

}  // namespace

void checkTrash(const TrialGround& ground, Findings& findings) {
    for (const auto& place : trashPlaces(ground, findings))
        checkTrashThatIsALink(ground, place, findings);

    TrialMachine machine(ground, "trash-swaps", findings);
    const std::string left = "Downloads/left/film.mov";
    machine.treasure("Documents/Work/film.mov");
    machine.treasure(item);
    machine.treasure(left);
    if (findings.isOver()) return;
    machine.trash(item, [&] {
        if (machine.swap(std::string(parentPath(item)), "../Documents/Work")) findings.strike();
    });
    machine.trash(left, [&] {
        if (machine.move(std::string(parentPath(left)), "Documents/Taken")) findings.strike();
    });
    machine.account("on its way to the Trash");
}

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
    machine.account("when its name in the Trash was given to another");
    machine.treasure(item);
    if (findings.isOver()) return;

    findings.strike();
    if (putBack(*first, machine.host()).place)
        findings.fault("putting back took a place that was taken");
    machine.account("when its place was taken");
}

}  // namespace tidewell::selfcheck
