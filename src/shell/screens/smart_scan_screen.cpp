#include "shell/screens/smart_scan_screen.h"

#include <string>
#include <utility>
#include <vector>

#include "platform/dates.h"

namespace tidewell {

namespace {

using Segment = RingSegmentContent;
using Card = ToolCardContent;
using Insight = InsightContent;

QVariant accentOf(Mode section) {
    return QVariant::fromValue(PaletteValue(sectionPalette(accent(section))));
}

std::string segmentKey(const Segment& segment) {
    return std::string(title(segment.section));
}

std::vector<ListModel<Segment>::Role> segmentRoles() {
    return {
        {"accent", [](const Segment& segment) { return accentOf(segment.section); }},
        {"fill", [](const Segment& segment) { return segment.fill; }},
        {"warming", [](const Segment& segment) { return segment.warming; }},
    };
}

std::string cardKey(const Card& card) {
    return std::string(card.title);
}

std::vector<ListModel<Card>::Role> cardRoles() {
    return {
        {"symbol", [](const Card& card) { return toText(card.symbol); }},
        {"title", [](const Card& card) { return toText(card.title); }},
        {"accent", [](const Card& card) { return accentOf(card.section); }},
        {"line", [](const Card& card) { return toText(card.line); }},
        {"mark", [](const Card& card) { return toText(card.mark); }},
        {"hoverMark", [](const Card& card) { return toText(card.hoverMark); }},
        {"dimming", [](const Card& card) { return card.opacity; }},
        {"isActive", [](const Card& card) { return card.status == ToolCardStatus::active; }},
        {"isDone", [](const Card& card) { return card.status == ToolCardStatus::done; }},
        {"opens", [](const Card& card) { return card.opens; }},
    };
}

std::string insightKey(const Insight& insight) {
    return insight.text;
}

std::vector<ListModel<Insight>::Role> insightRoles() {
    return {
        {"symbol", [](const Insight& insight) { return toText(insight.symbol); }},
        {"text", [](const Insight& insight) { return toText(insight.text); }},
        {"accent", [](const Insight& insight) { return accentOf(insight.section); }},
    };
}

}  // namespace

SmartScanScreen::SmartScanScreen(std::shared_ptr<ContentView> view, QObject* parent)
    : Screen(parent),
      view_(std::move(view)),
      segments_(segmentKey, segmentRoles(), this),
      cards_(cardKey, cardRoles(), this),
      insights_(insightKey, insightRoles(), this) {
    observe(view_->smartScan->willChange);
    update();
}

QString SmartScanScreen::primaryLabel() const {
    return content_.primaryAction ? toText(content_.primaryAction->label) : QString();
}

void SmartScanScreen::back() {
    if (!view_->smartScan->isRunning()) view_->smartScan->reset();
}

void SmartScanScreen::openCard(int row) {
    if (const auto* card = cards_.at(row); card && card->opens) view_->mode = card->section;
}

void SmartScanScreen::openPrimary() {
    if (content_.primaryAction) view_->mode = content_.primaryAction->opens;
}

void SmartScanScreen::update() {
    content_ = smartScanContent(*view_->smartScan, now());
    segments_.set({content_.segments.begin(), content_.segments.end()});
    cards_.set({content_.cards.begin(), content_.cards.end()});
    insights_.set(content_.insights);
}

}  // namespace tidewell
