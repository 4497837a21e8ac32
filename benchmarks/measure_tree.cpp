#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "platform/disk_usage.h"
#include "platform/linux/measuring_pool.h"

namespace {

using namespace tidewell;

/// Without the process's own pool, whose width follows from the machine.
ByteCount measuredBy(int threads, const char* path) {
    auto folder = posix::openFolder(path);
    return folder ? linux_system::MeasuringPool::make(threads).measure(std::move(folder)) : 0;
}

}  // namespace

/// Prints the bytes allocated for the files below a folder.
int main(int count, char** arguments) {
    if (count == 2) {
        std::printf("%lld\n", static_cast<long long>(allocatedSize(arguments[1])));
    } else if (count == 4 && std::string_view(arguments[1]) == "--threads") {
        const auto size = measuredBy(std::atoi(arguments[2]), arguments[3]);
        std::printf("%lld\n", static_cast<long long>(size));
    } else {
        std::fprintf(stderr, "Usage: measure_tree [--threads N] FOLDER\n");
        return 2;
    }
    return 0;
}
