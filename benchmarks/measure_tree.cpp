#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "platform/disk_usage.h"
#include "platform/posix/folder_measurer.h"
#include "platform/posix/reach.h"
#include "platform/posix/work_pool.h"

namespace {

using namespace tidewell;

/// Without the process's own pool, whose width follows from the machine.
ByteCount measuredBy(int threads, const char* path) {
    auto& pool = posix::WorkPool::make(threads);
    const posix::Measuring how{.helpers = posix::Helpers::welcome};
    return posix::usageBelow(pool, posix::openFolder(path), how).bytes;
}

}  // namespace

/// Prints the bytes allocated for the files below a folder; or those that removing it would free,
/// which counts a file with several names once.
int main(int count, char** arguments) {
    if (count == 2) {
        std::printf("%lld\n", static_cast<long long>(allocatedSize(arguments[1])));
    } else if (count == 3 && std::string_view(arguments[1]) == "--freed") {
        const std::string folder = arguments[2];
        std::printf("%lld\n", static_cast<long long>(freedByRemoving({&folder, 1}).freedBytes));
    } else if (count == 4 && std::string_view(arguments[1]) == "--threads") {
        const auto size = measuredBy(std::atoi(arguments[2]), arguments[3]);
        std::printf("%lld\n", static_cast<long long>(size));
    } else {
        std::fprintf(stderr, "Usage: measure_tree [--threads N | --freed] FOLDER\n");
        return 2;
    }
    return 0;
}
