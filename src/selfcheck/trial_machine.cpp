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
    return found.host ? *std::move(found.host) : Host();
}

TrialMachine::TrialMachine(const TrialGround& ground, std::string_view name, Findings& findings)
    : ground_(ground), home_(joinPath(name, homeOnMachine)), findings_(findings) {
    require(ground_.folder(home_), "a folder");
    host_ = hostOn(ground, name);
    require(!host_.home.empty(), "a home folder");
}

void TrialMachine::require(bool isDone, std::string_view what) {
    if (!isDone) findings_.notTried(std::string(what) + " could not be made here");
}

std::string TrialMachine::onGround(std::string_view inHome) const {
    return joinPath(home_, inHome);
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
    require(ground_.file(onGround(path), treasure.content), "a file");
    treasures_.push_back(std::move(treasure));
}

void TrialMachine::link(std::string_view path, std::string_view target) {
    require(ground_.link(onGround(path), std::string(target)), "a link");
}

bool TrialMachine::move(const std::string& from, const std::string& to) {
    if (!ground_.move(onGround(from), onGround(to))) return false;
    follow(from, to);
    return true;
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

void TrialMachine::account(std::string_view after) {
    for (const auto& treasure : treasures_) {
        if (readFile(path(treasure.path), longestTreasure) == treasure.content) {
            findings_.stood(1);
        } else {
            findings_.fault(treasure.path + " was lost " + std::string(after));
        }
    }
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
