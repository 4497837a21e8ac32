#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace tidewell::posix {

/// For a folder that is opened to be listed, itself and not what a link leads to.
inline constexpr int openFolderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

/// A file descriptor that is closed with its owner; converts to false when opening failed.
class Descriptor {
 public:
    Descriptor() = default;
    explicit Descriptor(int descriptor) : descriptor_(descriptor) {}
    Descriptor(Descriptor&& other) noexcept : descriptor_(other.release()) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }
    ~Descriptor() {
        if (descriptor_ >= 0) ::close(descriptor_);
    }

    explicit operator bool() const { return descriptor_ >= 0; }
    int get() const { return descriptor_; }
    int release() { return std::exchange(descriptor_, -1); }

 private:
    int descriptor_ = -1;
};

/// Repeats a system call that a signal interrupted.
template <class Call>
auto retrying(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    return result;
}

}  // namespace tidewell::posix
