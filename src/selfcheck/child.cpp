#include "selfcheck/child.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <iterator>
#include <thread>

#include "platform/own_program.h"
#include "platform/path_text.h"
#include "platform/process.h"
#include "platform/trial_mounts.h"
#include "selfcheck/trial_machine.h"

namespace tidewell::selfcheck {

namespace {

void dieAfter(std::chrono::microseconds moment) {
    std::thread([moment] {
        std::this_thread::sleep_for(moment);
        dieNow();
    }).detach();
}

std::string playRemoval(const TrialMachine& machine, std::int64_t entry) {
    machine.empty(trialCache, [&entry](const std::string&) {
        if (entry-- == 0) dieNow();
    });
    return {};
}

std::string playWrite(const TrialMachine& machine, std::int64_t) {
    dieAtNextWrite();
    machine.trash(itemNumber(0));
    return {};
}

std::string playMoves(const TrialMachine& machine, std::int64_t moment) {
    dieAfter(std::chrono::microseconds(moment));
    for (std::size_t number = 0; number < itemsMoved; ++number) machine.trash(itemNumber(number));
    return {};
}

std::string playReturns(const TrialMachine& machine, std::int64_t moment) {
    const auto items = trashedItems(machine.host());
    dieAfter(std::chrono::microseconds(moment));
    for (const auto& item : items) putBack(item, machine.host());
    return {};
}

std::string playMounts(const TrialMachine& machine, std::int64_t) {
    if (auto why = keepMountsToOneself(); !why.empty()) return why;
    for (const auto* place : mountPlaces)
        if (!mountFolder(machine.path(mountedFolder), machine.path(place)))
            return "this user may mount nothing here";
    machine.empty(trialCache);
    machine.empty(mountPlaces[0]);
    if (mountFolder(machine.path("Documents/Work"), machine.path(personalPlace)))
        machine.empty(joinPath(personalPlace, "chapters"));
    return {};
}

struct Part {
    std::string_view name;
    std::string (*play)(const TrialMachine& machine, std::int64_t moment);
};

constexpr Part parts[] = {
    {removalPart, playRemoval}, {writePart, playWrite},   {movesPart, playMoves},
    {returnsPart, playReturns}, {mountsPart, playMounts},
};

}  // namespace

std::string itemNumber(std::size_t number) {
    return "Downloads/trial/" + std::to_string(number) + ".mov";
}

ChildRun playInChild(const TrialGround& ground, std::string_view machine, std::string_view part,
                     std::int64_t moment) {
    const auto host = TrialMachine::hostOn(ground, machine);
    auto word = std::string(machine) + ":" + std::string(part) + ":" + std::to_string(moment);
    const auto run = runTool(ownProgram(),
                             {"--root", host.root, "--home", host.home, "selfcheck", "--on",
                              ground.path(), "--part", std::move(word)},
                             ToolOutput::keep);
    if (!run) return {.end = ChildEnd::notTried, .why = "the program could not start itself"};
    if (!run->exitStatus) return {.end = ChildEnd::killed, .why = {}};
    if (*run->exitStatus == 0) return {.end = ChildEnd::done, .why = {}};
    return {.end = ChildEnd::notTried,
            .why = run->output.empty() ? "the program ended early"
                                       : run->output.substr(0, run->output.find('\n'))};
}

std::string play(const std::string& groundPath, std::string_view word) {
    const auto pieces = [&word] {
        const auto piece = word.substr(0, word.find(':'));
        word.remove_prefix(std::min(word.size(), piece.size() + 1));
        return piece;
    };
    const std::string name(pieces());
    const auto part = pieces();
    std::int64_t moment = 0;
    std::from_chars(word.data(), word.data() + word.size(), moment);

    const auto opened = TrialGround::openAt(groundPath);
    if (!opened.ground) return opened.problem;
    Findings findings;
    const TrialMachine machine(*opened.ground, name, findings);
    if (findings.isOver()) return "the machine could not be found";
    const auto found = std::ranges::find(parts, part, &Part::name);
    return found == std::end(parts) ? "there is no such part" : found->play(machine, moment);
}

}  // namespace tidewell::selfcheck
