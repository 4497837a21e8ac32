#include "platform/linux/measuring_pool.h"

#include <algorithm>
#include <system_error>
#include <thread>
#include <utility>

#include "platform/linux/descriptor_limit.h"
#include "platform/linux/folder_measurer.h"

namespace tidewell::linux_system {
namespace {

/// How many descriptors all threads together should hold, if the process may open so many.
constexpr std::size_t descriptorBudget = 256;

/// What a thread opens besides the folders that it holds: the one that it reads, and two on the way
/// to one that was let go.
constexpr std::size_t descriptorsInUse = 3;

std::size_t foldersHeld(int width) {
    const auto budget = std::min(descriptorBudget, descriptorLimit() / 2);
    const auto ofThread = budget / static_cast<std::size_t>(width);
    return ofThread > descriptorsInUse ? ofThread - descriptorsInUse : 1;
}

}  // namespace

MeasuringPool::MeasuringPool(int width)
    : foldersHeldByThread_(foldersHeld(width)), width_(width), appetite_(width) {}

DiskUsage MeasuringPool::measure(posix::Descriptor folder) {
    const auto identity = mountedFolder(folder.get());
    Measure measure;
    if (!identity) {
        measure.found.unread.addUnknown();
        return std::move(measure.found);
    }
    measure.start = std::make_shared<const posix::Descriptor>(std::move(folder));
    measure.openShares = 1;
    FolderWork all{.place = FolderChain(*identity), .descriptor = measure.start};
    all.isUnread = true;

    Lock lock(mutex_);
    workOn({&measure, std::move(all)}, Role::caller, lock);
    while (measure.openShares > 0) {
        if (auto share = takeShareOf(measure)) {
            workOn(std::move(*share), Role::caller, lock);
        } else {
            measure.ended.wait(lock);
        }
    }
    return std::move(measure.found);
}

void MeasuringPool::offer(Measure& measure, FolderWork work) {
    const Lock lock(mutex_);
    ++measure.openShares;
    shares_.push_back({&measure, std::move(work)});
    const bool isHelperMissing = std::cmp_less(idleHelpers_, shares_.size()) && helpers_ < width_;
    if (hasRoom() && isHelperMissing) startHelper();
    updateAppetite();
    helpWanted_.notify_one();
}

void MeasuringPool::help() {
    Lock lock(mutex_);
    for (;;) {
        ++idleHelpers_;
        helpWanted_.wait(lock, [this] { return !shares_.empty() && hasRoom(); });
        --idleHelpers_;
        auto share = std::move(shares_.front());
        shares_.pop_front();
        workOn(std::move(share), Role::helper, lock);
    }
}

void MeasuringPool::startHelper() {
    try {
        std::thread([this] { help(); }).detach();
        ++helpers_;
    } catch (const std::system_error&) {
        // No more threads are to be had. What nobody takes is left to the measure's own caller.
        width_ = std::max(1, helpers_);
    }
}

/// Unlocks while it works.
void MeasuringPool::workOn(Share share, Role role, Lock& lock) {
    auto& measure = *share.measure;
    ++atWork_;
    updateAppetite();
    lock.unlock();
    const auto stepBack = role == Role::helper ? StepBack::whenCrowded : StepBack::never;
    const auto found = FolderMeasurer(*this, measure, stepBack).run(std::move(share.work));
    lock.lock();
    --atWork_;
    updateAppetite();
    if (!shares_.empty()) helpWanted_.notify_one();
    measure.found.bytes += found.bytes;
    measure.found.unread.add(found.unread);
    if (--measure.openShares == 0) measure.ended.notify_one();
}

std::optional<MeasuringPool::Share> MeasuringPool::takeShareOf(const Measure& measure) {
    const auto found = std::ranges::find(shares_, &measure, &Share::measure);
    if (found == shares_.end()) return std::nullopt;
    auto share = std::move(*found);
    shares_.erase(found);
    return share;
}

void MeasuringPool::updateAppetite() {
    const int room = width_ - atWork_;
    const int waiting = static_cast<int>(shares_.size());
    appetite_.store(room < 0 ? room : std::max(0, room - waiting), std::memory_order_relaxed);
}

}  // namespace tidewell::linux_system
