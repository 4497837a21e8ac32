#include "selfcheck/trial_machine.h"

#include <algorithm>
#include <utility>

#include "cleanup/deletion_guard.h"
#include "deepscan/big_item_trash_guard.h"
#include "platform/files.h"
#include "platform/path_text.h"

namespace tidewell::selfcheck {

namespace {

constexpr std::string_view homeOnMachine = "home/user";
constexpr std::size_t longestTreasure = 4096;

}  // namespace

Host TrialMachine::hostOn(const TrialGround& ground, std::string_view name) {
    const auto root = joinPath(ground.path(), name);
    auto found =
        findHost({.root = root, .home = joinPath(root, homeOnMachine), .system = ownSystem()});
    if (!found.host) return Host();
    found.host->removals = Removals::free;
    return *std::move(found.host);
}

TrialMachine::TrialMachine(const TrialGround& ground, std::string_view name, Findings& findings)
    : ground_(ground), name_(name), findings_(findings) {
    require(ground_.folder(joinPath(name, homeOnMachine)), "a folder");
    host_ = hostOn(ground, name);
    require(!host_.home.empty(), "a home folder");
}

void TrialMachine::require(bool isDone, std::string_view what) {
    if (!isDone) findings_.notTried(std::string(what) + " could not be made here");
}

std::string TrialMachine::onGround(std::string_view name, std::string_view inHome) {
    return joinPath(joinPath(name, homeOnMachine), inHome);
}

std::string TrialMachine::path(std::string_view inHome) const {
    return joinPath(host_.home, inHome);
}

std::string TrialMachine::relative(std::string_view path) const {
    return std::string(pathRelativeTo(path, host_.home));
}

void TrialMachine::folder(std::string_view path) {
    require(ground_.folder(onGround(path)), "a folder");
}

void TrialMachine::file(std::string_view path) {
    require(ground_.file(onGround(path), "may go"), "a file");
}

void TrialMachine::treasure(std::string_view path) {
    Treasure treasure{.path = std::string(path),
                      .content = "must stay " + std::to_string(treasures_.size())};
    const bool isMade = ground_.file(onGround(path), treasure.content);
    require(isMade, "a file");
    if (isMade) treasures_.push_back(std::move(treasure));
}

void TrialMachine::link(std::string_view path, std::string_view target) {
    require(ground_.link(onGround(path), std::string(target)), "a link");
}

bool TrialMachine::move(const std::string& from, const std::string& to) {
    if (!ground_.move(onGround(from), onGround(to))) return false;
    follow(from, to);
    return true;
}

bool TrialMachine::swap(const std::string& folder, std::string_view target) {
    if (!move(folder, "aside/" + std::to_string(swaps_++))) return false;
    link(folder, target);
    return true;
}

bool TrialMachine::isEmpty(std::string_view folder) const {
    const auto names = folderNames(path(folder));
    return names && names->empty();
}

bool TrialMachine::setAccess(std::string_view folder, Access access) {
    return ground_.setAccess(onGround(folder), access);
}

void TrialMachine::follow(const std::string& from, const std::string& to) {
    for (auto& treasure : treasures_) {
        if (!isAtOrBelow(treasure.path, from)) continue;
        treasure.path = to + treasure.path.substr(from.size());
    }
}

std::size_t TrialMachine::findTrashed() {
    const auto items = trashedItems(host_);
    for (auto& treasure : treasures_) {
        const auto found = std::ranges::find(items, path(treasure.origin), [](const auto& item) {
            return item.origin.value_or(std::string());
        });
        treasure.path = found == items.end() ? treasure.origin : relative(found->path);
    }
    return items.size();
}

void TrialMachine::account(std::string_view after, std::size_t mayGo) {
    std::string lost;
    std::size_t stood = 0;
    for (const auto& treasure : treasures_) {
        if (readFile(path(treasure.path), longestTreasure) == treasure.content) {
            ++stood;
        } else {
            lost = treasure.path;
        }
    }
    findings_.stood(stood);
    if (treasures_.size() - stood > mayGo)
        findings_.fault(lost + " was lost " + std::string(after));
}

std::optional<Removal> TrialMachine::empty(std::string_view folder, const Strike& strike) const {
    const DeletionGuard guard(host_);
    const auto approved = guard.approve(path(folder));
    if (!approved) return std::nullopt;
    return emptyFolder(*approved, [&, ask = guard.childGuard(*approved)](std::string_view name) {
        auto answer = ask(name);
        if (strike) strike(std::string(name));
        return answer;
    });
}

std::optional<Removal> TrialMachine::removeSingle(std::string_view item,
                                                  const std::function<void()>& strike) const {
    const auto approved = DeletionGuard(host_).approve(path(item));
    if (!approved) return std::nullopt;
    if (strike) strike();
    return removeItem(*approved);
}

Trashing TrialMachine::trash(std::string_view item, const std::function<void()>& strike) const {
    BigItem wanted;
    wanted.id = path(item);
    wanted.kind = BigItem::Kind::personal;
    const auto approved = BigItemTrashGuard(host_).approve(wanted);
    if (!approved) return {.moved = {}, .problem = "The guard refuses it."};
    if (strike) strike();
    return moveToTrash(*approved, host_);
}

}  // namespace tidewell::selfcheck
