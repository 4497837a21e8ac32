#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace tidewell {

/// What a measure could not read, though it stands there. The same thing counts as the same in the
/// next measure, so that two can be compared; the things themselves are not kept. Takes bounded
/// memory: beyond that it is like nothing else.
class UnreadThings {
 public:
    /// From so many on they are not told apart any more.
    static constexpr std::size_t most = 4096;

    /// Something that is known by a place and a name, both only compared.
    void add(std::uint64_t place, std::string_view name);
    /// Something of which no more is known; it counts as different from all others.
    void addUnknown();
    void add(const UnreadThings& others);

    bool isEmpty() const { return things_.empty(); }
    std::size_t count() const { return isOverfull_ ? most : things_.size(); }
    /// Whether others has all that is in here.
    bool areAmong(const UnreadThings& others) const;

 private:
    void addThing(std::uint64_t thing);

    std::vector<std::uint64_t> things_;  ///< ascending
    bool isOverfull_ = false;
};

}  // namespace tidewell
