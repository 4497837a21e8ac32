#include "support/allocation_failure.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

thread_local bool nextFails = false;

}  // namespace

void* operator new(std::size_t size) {
    const bool fails = nextFails;
    nextFails = false;
    void* place = fails ? nullptr : std::malloc(size == 0 ? 1 : size);
    if (!place) throw std::bad_alloc();
    return place;
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return std::malloc(size == 0 ? 1 : size);
}

void operator delete(void* place) noexcept {
    std::free(place);
}

void operator delete(void* place, std::size_t) noexcept {
    std::free(place);
}

namespace tidewell::test {

void failNextAllocation() {
    nextFails = true;
}

}  // namespace tidewell::test
