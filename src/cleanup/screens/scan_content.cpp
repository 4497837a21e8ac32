#include "cleanup/screens/scan_content.h"

#include "kit/byte_text.h"

namespace tidewell {

namespace {

constexpr std::string_view idleCaption = "Finds junk your Mac can rebuild. You choose what goes.";
constexpr std::string_view scanningCaption = "Just looking. Nothing gets deleted.";
constexpr std::string_view failureAdvice =
    " macOS may need Full Disk Access for these. Grant it in System Settings ▸ Privacy & "
    "Security.";

std::string failureSentence(const std::vector<std::string>& titles) {
    std::string sentence;
    for (const auto& title : titles) {
        if (!sentence.empty()) sentence += ", ";
        sentence += title;
    }
    return sentence + "." + std::string(failureAdvice);
}

}  // namespace

std::string percentText(double fraction) {
    return std::to_string(static_cast<int>(fraction * 100)) + "%";
}

ScanContent scanContent(const CleanupViewModel& model, ByteCount totalFreedBytes) {
    const bool isScanning = model.phase() == CleanupViewModel::Phase::scanning;
    ScanContent content{.caption = isScanning ? scanningCaption : idleCaption,
                        .soFar = std::nullopt,
                        .percent = percentText(model.scanProgress()),
                        .isScanning = isScanning};
    if (!isScanning && totalFreedBytes >= 1)
        content.soFar = "+" + byteText(totalFreedBytes) + " so far";
    return content;
}

CleanedContent cleanedContent(const CleanupViewModel& model) {
    const bool hasFreed = model.freedBytes() >= 1;
    CleanedContent content{
        .percent = percentText(model.cleanProgress()),
        .reclaimed = std::nullopt,
        .ringLine = hasFreed ? "reclaimed" : "All done",
        .freeBefore = byteText(model.freeSpaceBefore()),
        .freeAfter = byteText(model.freeSpaceAfter()) + " free",
        .failureNote = std::nullopt,
        .isCleaning = model.phase() == CleanupViewModel::Phase::cleaning,
    };
    if (hasFreed) content.reclaimed = model.freedBytes();
    if (!model.failedTitles().empty()) content.failureNote = failureSentence(model.failedTitles());
    return content;
}

}  // namespace tidewell
