#pragma once

namespace tidewell::test {

/// The next allocation of the calling thread fails, once: as if the memory had come to its end.
void failNextAllocation();

}  // namespace tidewell::test
