#pragma once

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <functional>
#include <iterator>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace tidewell {

/// Work that can be cut into pieces, done by the calling thread and by helpers that are started as
/// pieces are given away. Work of one piece thus costs no thread.
template <class Piece>
class SharedWork {
 public:
    /// `doPiece` runs on several threads at once.
    SharedWork(int threads, std::function<void(Piece)> doPiece)
        : doPiece_(std::move(doPiece)), unstarted_(threads - 1), wanted_(unstarted_) {}

    /// Returns when the piece, and all that was given away from it, is done.
    void run(Piece first) {
        pieces_.push_back(std::move(first));
        doPieces();
        for (auto& helper : helpers_) helper.join();
    }

    /// Whether a thread has nothing to do. Cheap enough to be asked often.
    bool isWanted() const { return wanted_.load(std::memory_order_relaxed) > 0; }

    /// For use inside a piece: leaves a part of it to another thread.
    void give(Piece piece) {
        const std::lock_guard lock(mutex_);
        pieces_.push_back(std::move(piece));
        if (waiting_ == 0 && unstarted_ > 0) startHelper();
        changed_.notify_one();
    }

    /// For use inside a piece, when it lacks what the other threads at work hold: leaves the rest
    /// of it for later, and from now on one piece is done at a time. False if no other is at work.
    bool leaveForLater(std::vector<Piece>& rest) {
        const std::lock_guard lock(mutex_);
        if (busy_ <= 1) return false;
        std::ranges::move(rest, std::back_inserter(pieces_));
        rest.clear();
        isOneAtATime_ = true;
        updateWanted();
        return true;
    }

 private:
    void doPieces() {
        while (auto piece = take()) {
            doPiece_(std::move(*piece));
            const std::lock_guard lock(mutex_);
            --busy_;
            changed_.notify_all();
        }
    }

    /// Absent once all is done.
    std::optional<Piece> take() {
        std::unique_lock lock(mutex_);
        while (pieces_.empty() || (isOneAtATime_ && busy_ > 0)) {
            if (pieces_.empty() && busy_ == 0) return std::nullopt;
            ++waiting_;
            updateWanted();
            changed_.wait(lock);
            --waiting_;
            updateWanted();
        }
        std::optional<Piece> piece = std::move(pieces_.back());
        pieces_.pop_back();
        ++busy_;
        return piece;
    }

    void startHelper() {
        try {
            helpers_.emplace_back([this] { doPieces(); });
            --unstarted_;
        } catch (const std::system_error&) {
            // The machine has no thread to spare: those at work do it all.
            unstarted_ = 0;
        }
        updateWanted();
    }

    void updateWanted() { wanted_ = isOneAtATime_ ? 0 : waiting_ + unstarted_; }

    const std::function<void(Piece)> doPiece_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<Piece> pieces_;
    std::vector<std::thread> helpers_;
    int unstarted_;
    int waiting_ = 0;
    int busy_ = 0;
    bool isOneAtATime_ = false;
    std::atomic<int> wanted_;
};

}  // namespace tidewell
