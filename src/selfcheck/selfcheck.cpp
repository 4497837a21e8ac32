#include "selfcheck/selfcheck.h"

#include <algorithm>
#include <utility>

#include "cleanup/deletion_guard.h"
#include "platform/files.h"
#include "platform/path_text.h"
#include "platform/removal.h"
#include "selfcheck/child_checks.h"
#include "selfcheck/removal_checks.h"
#include "selfcheck/trash_checks.h"

namespace tidewell::selfcheck {

namespace {

constexpr Check checks[] = {
    {"links", "links in a cache, and one in the place of a cache", Need::essential, checkLinks},
    {"kept", "keys, profiles and personal folders, asked for by name", Need::essential, checkKept},
    {"swaps", "folders swapped for links during a removal", Need::essential, checkSwaps},
    {"moves out", "a folder moved to Documents while it is emptied", Need::essential,
     checkMovesOut},
    {"permissions", "folders closed to this user", Need::whereAllowed, checkPermissions},
    {"trash", "a Trash that is a link, and swaps on the way there", Need::essential, checkTrash},
    {"collisions", "names taken in the Trash, and places taken behind it", Need::essential,
     checkCollisions},
    {"kills", "a removal and moves to the Trash killed in the middle", Need::essential, checkKills},
    {"mounts", "a folder mounted in a cache", Need::whereAllowed, checkMounts},
};

CheckResult resultOf(const Check& check, const TrialGround& ground) {
    CheckResult result{
        .name = std::string(check.name), .tried = std::string(check.tried), .need = check.need};
    Findings findings;
    check.run(ground, findings);
    findings.writeTo(result);
    return result;
}

/// As on a machine on which this is the user's scratch folder, and nothing beside it may go.
Removal clear(const std::string& place, const std::string& ground) {
    Host host;
    host.system = ownSystem();
    host.root = host.home = place;
    host.baseFolders = {.cache = joinPath(place, ".cache"),
                        .config = joinPath(place, ".config"),
                        .data = joinPath(place, ".local/share"),
                        .state = joinPath(place, ".local/state")};
    host.temporaryDirectory = ground;
    const auto approved = DeletionGuard(host).approve(ground);
    return approved ? removeItem(*approved) : Removal::incomplete;
}

}  // namespace

void Findings::writeTo(CheckResult& result) const {
    result.times = times_;
    result.stoodBy = stoodBy_;
    const bool hasStruck = times_ > 0;
    result.verdict = !fault_.empty()                    ? Verdict::failed
                     : !obstacle_.empty() || !hasStruck ? Verdict::notTried
                                                        : Verdict::passed;
    result.why = !fault_.empty() ? fault_ : obstacle_;
    if (result.why.empty() && !hasStruck) result.why = "it never came to it";
}

bool Report::hasPassed() const {
    return problem.empty() && !results.empty() &&
           std::ranges::all_of(results, [](const CheckResult& result) {
               return result.verdict == Verdict::passed ||
                      (result.verdict == Verdict::notTried && result.need == Need::whereAllowed);
           });
}

std::optional<std::string> usualPlace(const Host& host) {
    for (const auto& folder :
         {host.baseFolders.cache, host.userCacheDirectory, host.temporaryDirectory})
        if (!folder.empty() && fileKind(folder) == FileKind::folder) return resolvedPath(folder);
    return std::nullopt;
}

Report checkIn(const std::string& place, const Watching& watching) {
    Report report{.folder = place};
    for (const auto& left : TrialGround::leftIn(place)) {
        if (const auto earlier = TrialGround::openAt(left).ground) openClosedFolders(*earlier);
        clear(place, left);
    }
    auto made = TrialGround::makeIn(place);
    report.problem = made.problem;
    if (!made.ground) return report;
    for (const auto& check : checks) {
        if (watching.isToEnd()) {
            report.problem = "It was interrupted";
            break;
        }
        watching.tell(report.results.emplace_back(resultOf(check, *made.ground)));
    }
    if (clear(place, made.ground->path()) != Removal::complete)
        report.problem = "What was laid out could not be removed: " + made.ground->path();
    return report;
}

}  // namespace tidewell::selfcheck
