#pragma once

#include <sys/wait.h>

#include <cerrno>
#include <chrono>
#include <cstddef>
#include <filesystem>
#include <iterator>
#include <thread>
#ifdef __SANITIZE_ADDRESS__
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#else
#include <malloc.h>
#endif

namespace tidewell::test {

// What the test's own process holds, for tests that do a thing many times.

#ifdef __SANITIZE_ADDRESS__
/// Bytes that the program has asked for and not given back.
inline std::size_t heapInUse() {
    return __sanitizer_get_current_allocated_bytes();
}
constexpr std::size_t allocatorsOwn = 0;
#else
/// The same, with what the allocator keeps at hand for each thread.
inline std::size_t heapInUse() {
    const auto heap = ::mallinfo2();
    return heap.uordblks + heap.hblkhd;
}
constexpr std::size_t allocatorsOwn = std::size_t{32} * 1024;
#endif

inline std::ptrdiff_t openDescriptors() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

/// How many threads are left, once there are no more than so many or ten seconds have passed: one
/// that has handed over its value may still be on its way out.
inline std::ptrdiff_t threadsInTheEnd(std::ptrdiff_t expected) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    std::ptrdiff_t threads = 0;
    do {
        std::this_thread::yield();
        threads = std::distance(std::filesystem::directory_iterator("/proc/self/task"), {});
    } while (threads > expected && std::chrono::steady_clock::now() < deadline);
    return threads;
}

inline bool hasChildren() {
    return ::waitpid(-1, nullptr, WNOHANG) != -1 || errno != ECHILD;
}

}  // namespace tidewell::test
