#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "platform/posix/descriptor.h"

namespace tidewell::posix {

/// Asks the system which path an open folder has by now. Any thread.
class DescriptorPaths {
 public:
    /// No longer path is told, whatever the system.
    static constexpr std::size_t limit = 4095;
    using Buffer = std::array<char, limit + 1>;

    /// Finds out how to ask.
    DescriptorPaths();

    /// The longest path that this system tells; 0 if it tells none.
    std::size_t longest() const { return longest_; }
    /// A view into the buffer; absent if there is no telling.
    std::optional<std::string_view> pathOf(int descriptor, Buffer& buffer) const;

 private:
    Descriptor source_;  ///< where the system has to be asked through a folder of its own
    std::size_t longest_ = 0;
};

}  // namespace tidewell::posix
