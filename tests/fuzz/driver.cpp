#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "fuzz_target.h"

void tidewell::test::require(bool promise) {
    if (!promise) std::abort();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tidewell::test::readHostileInput({reinterpret_cast<const char*>(data), size});
    return 0;
}
