#include "cli/item_list.h"

#include "cleanup/screens/review_content.h"
#include "cli/report.h"
#include "kit/byte_text.h"
#include "platform/text.h"

namespace tidewell::cli {

namespace {

constexpr int titleColumns = 44;
constexpr int sizeColumns = 10;

std::string tickText(const CleanupItem& item) {
    return item.isSelected ? inked("✓", Ink::good) : inked("–", Ink::faint);
}

void printItem(const CleanupItem& item) {
    const auto word = itemBadge(item, reviewBadge);
    const auto badge = word.empty() ? std::string() : "  " + std::string(word);
    const auto title = terminalText(item.target.title);
    const auto used = displayWidth(title) + displayWidth(badge);
    printLine("  " + tickText(item) + " " + title + inked(badge, Ink::careful) +
              rightAligned("", titleColumns - used) +
              rightAligned(byteText(item.sizeBytes), sizeColumns) + "  " +
              inked(terminalText(item.target.id), Ink::faint));
    printLine("      " + inked(terminalText(itemDetail(item)), Ink::faint));
}

}  // namespace

void printItems(const CleanupItems& items) {
    for (const auto& item : items) printItem(item);
}

}  // namespace tidewell::cli
