#include "cleanup/screens/scan_content.h"

#include "kit/byte_text.h"
#include "kit/percent_text.h"
#include "kit/words.h"

namespace tidewell {

namespace {

constexpr std::string_view scanningCaption = "Just looking. Nothing gets deleted.";

}  // namespace

ScanContent scanContent(const CleanupViewModel& model, ByteCount totalFreedBytes) {
    const bool isScanning = model.phase() == CleanupViewModel::Phase::scanning;
    ScanContent content{
        .caption = isScanning ? scanningCaption : wordsOf(model.servedSystem()).junkCaption,
        .soFar = std::nullopt,
        .percent = percentText(model.scanProgress()),
        .isScanning = isScanning};
    if (!isScanning && totalFreedBytes >= 1)
        content.soFar = "+" + byteText(totalFreedBytes) + " so far";
    return content;
}

std::optional<std::string> failureNote(const std::vector<std::string>& failedTitles,
                                       System system) {
    if (failedTitles.empty()) return std::nullopt;
    std::string titles;
    for (const auto& title : failedTitles) {
        if (!titles.empty()) titles += ", ";
        titles += title;
    }
    return titles + ". " + std::string(wordsOf(system).failureAdvice);
}

CleanedContent cleanedContent(const CleanupViewModel& model) {
    const bool hasFreed = model.freedBytes() >= 1;
    CleanedContent content{
        .percent = percentText(model.cleanProgress()),
        .reclaimed = std::nullopt,
        .ringLine = hasFreed ? "reclaimed" : "All done",
        .freeBefore = byteText(model.freeSpaceBefore()),
        .freeAfter = byteText(model.freeSpaceAfter()) + " free",
        .failureNote = failureNote(model.failedTitles(), model.servedSystem()),
        .isCleaning = model.phase() == CleanupViewModel::Phase::cleaning,
    };
    if (hasFreed) content.reclaimed = model.freedBytes();
    return content;
}

}  // namespace tidewell
