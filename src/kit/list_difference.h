#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tidewell {

/// One change to a list. A move takes the row at `from` out and puts it in at `to`.
struct ListStep {
    enum class Kind { remove, move, insert };

    Kind kind;
    std::size_t from;  ///< of a removal and a move
    std::size_t to;    ///< of a move and an insertion

    bool operator==(const ListStep&) const = default;
};

/// The steps, each in terms of the list that the last one left, that lead from one list of keys to
/// another. A row whose key stays is never removed. Where a key stands several times, its first row
/// is the first again, and so on.
std::vector<ListStep> listDifference(const std::vector<std::string>& before,
                                     const std::vector<std::string>& after);

}  // namespace tidewell
