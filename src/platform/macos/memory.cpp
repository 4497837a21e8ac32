#include "platform/memory.h"

#include <mach/mach.h>
#include <sys/sysctl.h>

#include <algorithm>

namespace tidewell {

namespace {

ByteCount installedMemory() {
    std::uint64_t bytes = 0;
    std::size_t size = sizeof bytes;
    return ::sysctlbyname("hw.memsize", &bytes, &size, nullptr, 0) == 0
               ? static_cast<ByteCount>(bytes)
               : 0;
}

}  // namespace

/// What programs have, what the system cannot give up, and what is compressed.
MemoryUsage memoryUsage() {
    const auto total = installedMemory();
    vm_statistics64_data_t pages{};
    mach_msg_type_number_t count = HOST_VM_INFO64_COUNT;
    const auto host = ::mach_host_self();
    const auto result =
        ::host_statistics64(host, HOST_VM_INFO64, reinterpret_cast<host_info64_t>(&pages), &count);
    ::mach_port_deallocate(mach_task_self(), host);
    if (result != KERN_SUCCESS) return {.used = 0, .total = total};
    const auto own = static_cast<std::int64_t>(pages.internal_page_count) - pages.purgeable_count;
    const auto used = own + pages.wire_count + pages.compressor_page_count;
    return {
        .used = std::clamp<ByteCount>(used * static_cast<ByteCount>(vm_kernel_page_size), 0, total),
        .total = total};
}

}  // namespace tidewell
