#include "advisor/screens/advisor_content.h"

#include "kit/byte_text.h"
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

std::optional<AdvisorActionButton> buttonOf(const AdvisorViewModel& model, const Finding& finding,
                                            std::string_view copied) {
    switch (finding.action) {
        case FindingAction::none:
            return std::nullopt;
        case FindingAction::run:
            return AdvisorActionButton{.action = finding.action,
                                       .label = std::string(finding.actionLabel),
                                       .state = buttonState(model, finding.id)};
        case FindingAction::copy:
            return AdvisorActionButton{.action = finding.action,
                                       .label = finding.id == copied ? "Copied" : "Copy command"};
    }
    return std::nullopt;
}

AdvisorCard card(const AdvisorViewModel& model, const Finding& finding, Date now,
                 std::string_view copied) {
    AdvisorCard shown{
        .id = finding.id,
        .symbol = finding.symbol,
        .title = finding.title,
        .body = finding.detail,
        .size = std::nullopt,
        .command = finding.command,
        .isWarning = finding.severity == FindingSeverity::warning,
        .runtimes = {},
        .button = buttonOf(model, finding, copied),
    };
    if (finding.sizeBytes) shown.size = byteText(*finding.sizeBytes);
    if (finding.id == runtimesFinding)
        for (const auto& runtime : model.findings().runtimes)
            shown.runtimes.push_back(runtimeRow(model, runtime, now));
    return shown;
}

AdvisorContent listContent(const AdvisorViewModel& model, Date now, std::string_view copied) {
    AdvisorContent content{
        .phase = AdvisorViewModel::Phase::list,
        .headline = headline(model),
        .message = model.lastMessage(),
        .notice = std::nullopt,
        .cards = {},
    };
    for (const auto& finding : listed(model.findings()))
        content.cards.push_back(card(model, finding, now, copied));
    if (!model.hasFindings()) content.notice = allClearNotice(wordsOf(model.system));
    return content;
}

AdvisorContent noticeContent(AdvisorViewModel::Phase phase, const AdvisorNotice& notice) {
    return {.phase = phase, .headline = {}, .message = {}, .notice = notice, .cards = {}};
}

}  // namespace

AdvisorContent advisorContent(const AdvisorViewModel& model, Date now, std::string_view copied) {
    switch (model.phase()) {
        case AdvisorViewModel::Phase::idle:
            return noticeContent(AdvisorViewModel::Phase::idle, startNotice(wordsOf(model.system)));
        case AdvisorViewModel::Phase::scanning:
            return noticeContent(AdvisorViewModel::Phase::scanning,
                                 scanningNotice(wordsOf(model.system)));
        case AdvisorViewModel::Phase::list:
            return listContent(model, now, copied);
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
