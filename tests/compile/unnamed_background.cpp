#include "async/background.h"

tidewell::Task<int> read() {
#ifdef WRONG
    co_return co_await tidewell::background([] { return 1; });
#else
    auto reading = tidewell::background([] { return 1; });
    co_return co_await reading;
#endif
}
