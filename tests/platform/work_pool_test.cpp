#include "platform/posix/work_pool.h"

#include <gtest/gtest.h>

#include <atomic>
#include <new>
#include <thread>
#include <vector>

namespace tidewell::posix {
namespace {

/// Counts what is done, in halves that are given away, and fails where it is told to.
struct Count {
    Job job;
    std::atomic<int> done = 0;
    std::atomic<int> untilFailure = -1;
};

class Counting : public Share {
 public:
    Counting(Count& count, int left) : count_(count), left_(left) {}
    void work(Role) override {
        while (left_ > 1 && count_.job.appetite() >= 0 && left_ % 2 == 0) {
            left_ /= 2;
            count_.job.offer(std::make_unique<Counting>(count_, left_));
        }
        for (; left_ > 0; --left_) {
            if (count_.untilFailure-- == 0) throw std::bad_alloc();
            ++count_.done;
        }
    }

 private:
    Count& count_;
    int left_;
};

constexpr int all = 1 << 12;

TEST(WorkPool, DoesEveryShareOnceForAllWhoAskAtOnce) {
    auto& pool = WorkPool::make(4);
    std::vector<std::jthread> callers;
    for (int caller = 0; caller < 6; ++caller)
        callers.emplace_back([&] {
            for (int round = 0; round < 50; ++round) {
                Count count{.job = Job(pool, Helpers::welcome)};
                count.job.run(std::make_unique<Counting>(count, all));
                EXPECT_EQ(count.done, all);
            }
        });
}

TEST(WorkPool, FailsTheJobOfAShareThatFailsAndNoOther) {
    auto& pool = WorkPool::make(4);
    for (int failing = 0; failing < all; failing += 37) {
        Count count{.job = Job(pool, Helpers::welcome), .untilFailure = failing};
        EXPECT_THROW(count.job.run(std::make_unique<Counting>(count, all)), std::bad_alloc);
        const auto done = withHelpersOrWithout([&](Helpers helpers) {
            Count again{.job = Job(pool, helpers),
                        .untilFailure = helpers == Helpers::welcome ? failing : -1};
            again.job.run(std::make_unique<Counting>(again, all));
            return again.done.load();
        });
        EXPECT_EQ(done, all);
    }
}

}  // namespace
}  // namespace tidewell::posix
