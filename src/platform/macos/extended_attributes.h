#pragma once

#include <sys/types.h>

#include <cstddef>
#include <cstdint>

// What the system's header of this name declares, where the compiler's headers lack it.

#if __has_include(<sys/xattr.h>)
#include <sys/xattr.h>
#else
inline constexpr int XATTR_NOFOLLOW = 1;

extern "C" {
ssize_t getxattr(const char* path, const char* name, void* value, std::size_t size,
                 std::uint32_t position, int options);
int setxattr(const char* path, const char* name, const void* value, std::size_t size,
             std::uint32_t position, int options);
int removexattr(const char* path, const char* name, int options);
}
#endif
