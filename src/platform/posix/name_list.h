#pragma once

#include <string>
#include <string_view>

namespace tidewell::posix {

/// Names kept for later, packed one behind the other: millions of them may be waiting.
class NameList {
 public:
    bool isEmpty() const { return packed_.empty(); }
    bool hasSeveral() const;
    std::size_t sizeInMemory() const { return packed_.size(); }

    void add(std::string_view name);
    /// Not to be called on an empty list.
    std::string takeLast();
    /// About half of the names by their bytes; none if there are fewer than two.
    NameList takeHalf();

    /// Calls `visit(const char*)` with each name, first to last.
    template <class Visit>
    void forEach(const Visit& visit) const {
        for (std::size_t at = 0; at < packed_.size(); at = packed_.find('\0', at) + 1)
            visit(packed_.data() + at);
    }

 private:
    std::string packed_;  ///< each name with a zero byte behind it
};

}  // namespace tidewell::posix
