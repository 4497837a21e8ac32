#include "advisor/screens/advisor_content.h"

#include "kit/byte_text.h"
#include "kit/count_text.h"
#include "kit/words.h"
#include "platform/dates.h"

namespace tidewell {

namespace {

AdvisorNotice startNotice(const Words& words) {
    return {.symbol = "wand.and.stars", .title = "", .line = words.advisorStart};
}

AdvisorNotice scanningNotice(const Words& words) {
    return {.symbol = "wand.and.stars", .title = "", .line = words.advisorScanning};
}

AdvisorNotice allClearNotice(const Words& words) {
    return {
        .symbol = "checkmark.seal.fill", .title = "You're all good", .line = words.advisorAllClear};
}

constexpr const char* runtimesBody =
    "A runtime is just the copy of iOS your Simulator boots. Your code and projects aren't in it. "
    "Xcode re-downloads it if you ever need it again. Usually the biggest hidden chunk of “System "
    "Data”.";

constexpr const char* snapshotsBody =
    " counted as “System Data”. macOS decides what's safe to purge. Your real backups on other "
    "drives stay untouched.";

constexpr const char* dockerBody =
    " virtual disk. Reclaim space safely from Docker itself: open Docker Desktop ▸ Troubleshoot ▸ "
    "Clean / Purge data, or run “docker system prune” in Terminal.";

std::string headline(const AdvisorViewModel& model) {
    if (!model.hasFindings()) return "You're all good.";
    const auto bytes = model.reclaimableBytes();
    return bytes >= 1 ? byteText(bytes) + " of easy wins found." : "A few easy wins found.";
}

AdvisorControlState buttonState(const AdvisorViewModel& model, std::string_view action) {
    return model.busyAction() == action ? AdvisorControlState::busy : AdvisorControlState::ready;
}

AdvisorControlState deleteButtonState(const AdvisorViewModel& model, const SimRuntime& runtime) {
    const auto state = buttonState(model, runtime.id);
    if (state == AdvisorControlState::busy || runtime.deletable) return state;
    return AdvisorControlState::disabled;
}

AdvisorRuntimeRow runtimeRow(const AdvisorViewModel& model, const SimRuntime& runtime, Date now) {
    AdvisorRuntimeRow row{
        .id = runtime.id,
        .name = runtime.name,
        .build = runtime.build,
        .size = byteText(runtime.sizeBytes),
        .lastUsed = std::nullopt,
        .usedBy = runtime.usedByLabel(),
        .deleteButton = deleteButtonState(model, runtime),
    };
    if (runtime.lastUsed) row.lastUsed = "Last used " + relativeDateInWords(*runtime.lastUsed, now);
    return row;
}

AdvisorCard runtimesCard(const AdvisorViewModel& model, Date now) {
    AdvisorCard card{
        .symbol = "iphone.gen3",
        .title = "iOS Simulator runtimes",
        .body = runtimesBody,
        .size = byteText(model.reclaimableBytes()),
        .runtimes = {},
        .button = std::nullopt,
    };
    for (const auto& runtime : model.findings().runtimes)
        card.runtimes.push_back(runtimeRow(model, runtime, now));
    return card;
}

AdvisorCard unavailableSimsCard(const AdvisorViewModel& model) {
    const auto count = countText(model.findings().unavailableSims, "simulator");
    return {
        .symbol = "iphone.slash",
        .title = "Unavailable simulators",
        .body = count + " whose runtime is gone. Dead weight.",
        .size = std::nullopt,
        .runtimes = {},
        .button =
            AdvisorActionButton{
                .action = AdvisorAction::removeUnavailableSims,
                .label = "Remove All",
                .state = buttonState(model, AdvisorViewModel::unavailableSimsAction),
            },
    };
}

AdvisorCard snapshotsCard(const AdvisorViewModel& model) {
    return {
        .symbol = "clock.arrow.circlepath",
        .title = "Time Machine local snapshots",
        .body = countText(model.findings().snapshotCount, "local snapshot") + snapshotsBody,
        .size = std::nullopt,
        .runtimes = {},
        .button =
            AdvisorActionButton{
                .action = AdvisorAction::thinSnapshots,
                .label = "Thin Snapshots",
                .state = buttonState(model, AdvisorViewModel::snapshotsAction),
            },
    };
}

AdvisorCard dockerCard(ByteCount bytes) {
    return {
        .symbol = "shippingbox",
        .title = "Docker virtual disk",
        .body = "Docker keeps all images and containers in one " + byteText(bytes) + dockerBody,
        .size = std::nullopt,
        .runtimes = {},
        .button = std::nullopt,
    };
}

std::vector<AdvisorCard> cards(const AdvisorViewModel& model, Date now) {
    const auto& found = model.findings();
    std::vector<AdvisorCard> shown;
    if (!found.runtimes.empty()) shown.push_back(runtimesCard(model, now));
    if (found.unavailableSims >= 1) shown.push_back(unavailableSimsCard(model));
    if (found.snapshotCount >= 1) shown.push_back(snapshotsCard(model));
    if (found.dockerBytes >= 1) shown.push_back(dockerCard(found.dockerBytes));
    return shown;
}

AdvisorContent listContent(const AdvisorViewModel& model, Date now) {
    AdvisorContent content{
        .phase = AdvisorViewModel::Phase::list,
        .headline = headline(model),
        .message = model.lastMessage(),
        .notice = std::nullopt,
        .cards = cards(model, now),
    };
    if (!model.hasFindings()) content.notice = allClearNotice(wordsOf(model.system));
    return content;
}

AdvisorContent noticeContent(AdvisorViewModel::Phase phase, const AdvisorNotice& notice) {
    return {.phase = phase, .headline = {}, .message = {}, .notice = notice, .cards = {}};
}

}  // namespace

AdvisorContent advisorContent(const AdvisorViewModel& model, Date now) {
    switch (model.phase()) {
        case AdvisorViewModel::Phase::idle:
            return noticeContent(AdvisorViewModel::Phase::idle, startNotice(wordsOf(model.system)));
        case AdvisorViewModel::Phase::scanning:
            return noticeContent(AdvisorViewModel::Phase::scanning,
                                 scanningNotice(wordsOf(model.system)));
        case AdvisorViewModel::Phase::list:
            return listContent(model, now);
    }
    return {};
}

RuntimeDeleteConfirmation runtimeDeleteConfirmation(const SimRuntime& runtime) {
    return {runtime.name +
            " is the copy of iOS the Simulator boots, not your code, projects, or personal data. " +
            runtime.usedByLabel() +
            ". Those simulators stop working until Xcode re-downloads the runtime (a " +
            byteText(runtime.sizeBytes) + " download) the next time you need them."};
}

}  // namespace tidewell
