#include "deepscan/screens/disk_map_screen.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "async/executor.h"
#include "kit/byte_text.h"
#include "kit/qt/kit.h"

namespace tidewell {

namespace {

using Phase = DiskMapViewModel::Phase;
using What = DiskMapNode::What;

constexpr std::size_t mostBranches = 200;

std::string crumbKey(const MapCrumb& crumb) {
    return std::to_string(crumb.node);
}

std::vector<ListModel<MapCrumb>::Role> crumbRoles() {
    return {{"name", [](const MapCrumb& crumb) { return toText(crumb.name); }},
            {"isLast", [](const MapCrumb& crumb) { return crumb.isLast; }}};
}

std::string legendKey(const MapLegendRow& row) {
    return std::string(row.look.title);
}

std::vector<ListModel<MapLegendRow>::Role> legendRoles() {
    using Row = MapLegendRow;
    return {{"title", [](const Row& row) { return toText(row.look.title); }},
            {"symbol", [](const Row& row) { return toText(row.look.symbol); }},
            {"tint", [](const Row& row) { return toQColor(row.look.color); }},
            {"size", [](const Row& row) { return toText(row.size); }},
            {"isChosen", [](const Row& row) { return row.isChosen; }}};
}

std::string branchKey(const MapBranch& branch) {
    return std::to_string(branch.node);
}

std::vector<ListModel<MapBranch>::Role> branchRoles() {
    return {{"name", [](const MapBranch& branch) { return toText(branch.name); }},
            {"words", [](const MapBranch& branch) { return toText(branch.words); }},
            {"area", [](const MapBranch& branch) { return branch.area; }}};
}

double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const Color& color) {
    return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue);
}

constexpr Color ground = {0.03, 0.05, 0.07};  ///< what shows between cells

Color mixed(const Color& color, double share) {
    const auto mix = [share](double one, double other) { return one + (other - one) * share; };
    return {mix(ground.red, color.red), mix(ground.green, color.green),
            mix(ground.blue, color.blue)};
}

/// Large areas of it are easy on the eye.
Color calm(const Color& color) {
    const double grey = 0.3 * color.red + 0.6 * color.green + 0.1 * color.blue;
    const auto mix = [grey](double channel) { return channel + (grey - channel) * 0.32; };
    return {mix(color.red), mix(color.green), mix(color.blue)};
}

/// As dark as it can be where a line between two cells is still seen, so that words stand out.
Color cellFill(const Color& bright) {
    constexpr double contrastToSee = 3.1;
    const auto color = calm(bright);
    double share = 0.3;
    while (share < 1 &&
           (luminance(mixed(color, share)) + 0.05) / (luminance(ground) + 0.05) < contrastToSee)
        share += 0.02;
    return mixed(color, share);
}

QRectF areaOfCell(const TreemapCell& cell) {
    return {cell.x, cell.y, cell.width, cell.height};
}

/// How far a cell is in a direction; infinitely if it does not lie there.
double distance(const QRectF& from, const QRectF& to, int across, int down) {
    constexpr double rounding = 0.01;
    const auto gap = across > 0   ? to.left() - from.right()
                     : across < 0 ? from.left() - to.right()
                     : down > 0   ? to.top() - from.bottom()
                                  : from.top() - to.bottom();
    if (gap < -rounding) return std::numeric_limits<double>::infinity();
    const auto aside = across != 0 ? std::abs(to.center().y() - from.center().y())
                                   : std::abs(to.center().x() - from.center().x());
    return gap + aside / 2;
}

}  // namespace

DiskMapScreen::DiskMapScreen(std::shared_ptr<DiskMapViewModel> model, Workspace workspace,
                             QObject* parent)
    : Screen(parent),
      model_(std::move(model)),
      workspace_(std::move(workspace)),
      crumbs_(crumbKey, crumbRoles(), this),
      legend_(legendKey, legendRoles(), this),
      branches_(branchKey, branchRoles(), this) {
    observe(model_->willChange);
    update();
}

bool DiskMapScreen::isNothing() const {
    return phase() == Phase::map && (map().isEmpty() || map()[0].bytes == 0);
}

QString DiskMapScreen::metLine() const {
    return toText(byteText(model_->metBytes()) + " so far");
}

QString DiskMapScreen::summary() const {
    return isShown() ? toText(mapSummary(map())) : QString();
}

QString DiskMapScreen::pointedWords() const {
    if (!pointed_) return {};
    const auto words = pointedThing_.figure + "\n" + std::string(pointedThing_.look.title);
    return toText(pointedThing_.sentence.empty() ? words : words + ". " + pointedThing_.sentence);
}

void DiskMapScreen::open() {
    if (phase() == Phase::idle) make();
}

void DiskMapScreen::make() {
    state_ = {};
    spawn(model_, &DiskMapViewModel::make);
}

void DiskMapScreen::stop() {
    model_->stop();
}

void DiskMapScreen::resize(double width, double height) {
    if (width == frame_.width && height == frame_.height) return;
    frame_.width = width;
    frame_.height = height;
    // In a later turn, for the view may be in the middle of being made.
    QMetaObject::invokeMethod(this, &DiskMapScreen::refresh, Qt::QueuedConnection);
}

void DiskMapScreen::point(double x, double y) {
    const auto node = nodeAt(x, y);
    if (node == pointed_) return;
    pointed_ = node;
    if (node) pointedThing_ = mapThing(*model_, *node);
    emit pointed();
}

void DiskMapScreen::pointNowhere() {
    if (!std::exchange(pointed_, std::nullopt)) return;
    emit pointed();
}

void DiskMapScreen::press(double x, double y) {
    if (const auto node = nodeAt(x, y)) open(*node);
}

void DiskMapScreen::open(std::uint32_t node) {
    if (map()[node].what == What::folder && map()[node].childCount > 0) {
        goTo(node);
    } else {
        takeInHand(node);
    }
}

void DiskMapScreen::step(int across, int down) {
    const auto* from = cellOf(state_.hand);
    const TreemapCell* nearest = nullptr;
    double least = std::numeric_limits<double>::infinity();
    for (const auto& cell : cells_) {
        if (cell.isOpen) continue;
        const double far =
            from ? distance(areaOfCell(*from), areaOfCell(cell), across, down) : cell.x + cell.y;
        if (far >= least) continue;
        least = far;
        nearest = &cell;
    }
    if (nearest) takeInHand(nearest->node);
}

void DiskMapScreen::enter() {
    if (map().isEmpty()) return;
    const auto& hand = map()[state_.hand];
    const bool isFolder = hand.what == What::folder && hand.childCount > 0;
    const auto folder = isFolder ? state_.hand : hand.parent;
    if (folder != state_.top && isIn(folder, state_.top)) goTo(folder);
}

bool DiskMapScreen::leave() {
    if (state_.top == 0) return false;
    const auto left = state_.top;
    goTo(map()[left].parent);
    takeInHand(left);
    return true;
}

void DiskMapScreen::goToCrumb(int row) {
    const auto* crumb = crumbs_.at(row);
    if (crumb && crumb->node != state_.top) goTo(crumb->node);
}

void DiskMapScreen::goToBranch(int row) {
    if (const auto* branch = branches_.at(row)) open(branch->node);
}

void DiskMapScreen::chooseVerdict(int row) {
    const auto* chosen = legend_.at(row);
    if (!chosen) return;
    state_.filter = chosen->isChosen ? std::nullopt : std::optional(chosen->verdict);
    refresh();
}

void DiskMapScreen::reveal() {
    if (!map().isEmpty()) workspace_.reveal(map().path(state_.hand));
}

void DiskMapScreen::showRow() {
    if (thing_.tool != RowTool::none) emit wantsTool(thing_.tool);
}

std::optional<BigItem> DiskMapScreen::itemAtRest() const {
    if (map().isEmpty() || thing_.trashHelp.empty() || !settling_.isOver()) return std::nullopt;
    return model_->item(state_.hand);
}

void DiskMapScreen::update() {
    if (map().isEmpty() || phase() != Phase::map) return;
    const auto count = map().nodes().size();
    if (state_.top >= count || state_.hand >= count) state_ = {};
    // What has gone is no longer in hand, nor on show.
    while (state_.top != 0 && map()[state_.top].bytes == 0) state_.top = map()[state_.top].parent;
    if (map()[state_.hand].bytes == 0 || !isIn(state_.hand, state_.top)) state_.hand = state_.top;
    pointed_.reset();
    layOut();
    thing_ = mapThing(*model_, state_.hand);
    crumbs_.set(mapCrumbs(map(), state_.top));
    legend_.set(mapLegend(map(), state_.top, state_.filter));
    emit tilesChanged();
    emit pointed();
}

void DiskMapScreen::layOut() {
    settling_.moved();
    sizes_.clear();
    for (const auto& node : map().nodes())
        sizes_.push_back({.size = static_cast<double>(node.bytes),
                          .firstChild = node.firstChild,
                          .childCount = node.childCount});
    cells_ = treemap(sizes_, state_.top, frame_);
    std::vector<TreemapTile> tiles;
    std::vector<MapBranch> branches;
    for (const auto& cell : cells_) {
        tiles.push_back(tileOf(cell));
        if (map()[cell.node].parent != state_.top || branches.size() >= mostBranches) continue;
        const auto thing = mapThing(*model_, cell.node);
        branches.push_back({.node = cell.node,
                            .name = thing.name,
                            .words = thing.figure + ". " + std::string(thing.look.title),
                            .area = areaOfCell(cell)});
    }
    tiles_ = TreemapTiles(std::move(tiles));
    branches_.set(std::move(branches));
}

void DiskMapScreen::goTo(std::uint32_t folder) {
    const auto from = state_.top;
    const bool isInwards = isIn(folder, from);
    if (isInwards) emit goesIn(areaOf(folder));
    state_.top = state_.hand = folder;
    if (!isInwards) {
        cells_ = treemap(sizes_, folder, frame_);
        auto part = from;
        while (part != folder && !cellOf(part)) part = map()[part].parent;
        if (cellOf(part)) emit goesOut(areaOf(part));
    }
    refresh();
}

void DiskMapScreen::takeInHand(std::uint32_t node) {
    if (state_.hand != node) settling_.moved();
    state_.hand = node;
    thing_ = mapThing(*model_, node);
    emit changed();
}

std::optional<std::uint32_t> DiskMapScreen::nodeAt(double x, double y) const {
    const auto hit = std::find_if(cells_.rbegin(), cells_.rend(), [&](const TreemapCell& cell) {
        return x >= cell.x && x < cell.x + cell.width && y >= cell.y && y < cell.y + cell.height;
    });
    return hit == cells_.rend() ? std::nullopt : std::optional(hit->node);
}

const TreemapCell* DiskMapScreen::cellOf(std::uint32_t node) const {
    const auto found = std::ranges::find(cells_, node, &TreemapCell::node);
    return found == cells_.end() ? nullptr : &*found;
}

QRectF DiskMapScreen::areaOf(std::uint32_t node) const {
    const auto* cell = cellOf(node);
    return cell ? areaOfCell(*cell) : QRectF();
}

bool DiskMapScreen::isIn(std::uint32_t node, std::uint32_t folder) const {
    for (; node != folder; node = map()[node].parent)
        if (node == 0) return false;
    return true;
}

TreemapTile DiskMapScreen::tileOf(const TreemapCell& cell) const {
    const auto& node = map()[cell.node];
    const auto shown = look(node.verdict.verdict);
    const bool isLit = !state_.filter || state_.filter == node.verdict.verdict;
    const auto fill = cell.isOpen ? mixed(shown.color, 0.10)
                      : isLit     ? cellFill(shown.color)
                                  : mixed(shown.color, 0.14);
    return {.area = areaOfCell(cell),
            .name = toText(shownName(map(), cell.node)),
            .size = toText(byteText(node.bytes)),
            .glyph = Kit::glyph(toText(shown.symbol)),
            .fill = toQColor(fill),
            .ink = toQColor(whiteAt(isLit || cell.isOpen ? 0.95 : 0.4)),
            .isOpen = cell.isOpen};
}

}  // namespace tidewell
