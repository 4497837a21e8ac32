#include "cli/context.h"

#include <utility>

namespace tidewell::cli {

namespace {

Task<> quitAfter(RunLoop& loop, Task<> task) {
    co_await task;
    loop.quit();
}

}  // namespace

void runToEnd(RunLoop& loop, Task<> task) {
    spawn(quitAfter(loop, std::move(task)));
    loop.run();
}

}  // namespace tidewell::cli
