#pragma once

#include <pthread.h>

#include <cstddef>

namespace tidewell::test {

/// While it lives no thread can be started in this process, as on a machine whose user has too
/// many: each would want a stack larger than the address space.
class NoMoreThreads {
 public:
    NoMoreThreads() {
        ::pthread_attr_init(&attributes_);
        ::pthread_getattr_default_np(&attributes_);
        ::pthread_attr_getstacksize(&attributes_, &usual_);
        wantStack(std::size_t{1} << 56);
    }
    NoMoreThreads(const NoMoreThreads&) = delete;
    NoMoreThreads& operator=(const NoMoreThreads&) = delete;
    ~NoMoreThreads() {
        wantStack(usual_);
        ::pthread_attr_destroy(&attributes_);
    }

 private:
    void wantStack(std::size_t size) {
        ::pthread_attr_setstacksize(&attributes_, size);
        ::pthread_setattr_default_np(&attributes_);
    }

    pthread_attr_t attributes_{};
    std::size_t usual_ = 0;
};

}  // namespace tidewell::test
