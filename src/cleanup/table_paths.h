#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/host.h"

namespace tidewell {

/// A path as the tables name it: absolute, which is taken as it stands, or below "~" or a base
/// folder such as "{cache}". In the latter a "*" as a whole component, or at the end of one, stands
/// for every name of that kind; nowhere else is it more than a letter.
class TablePath {
 public:
    TablePath(std::string_view stored, const Host& host);

    /// Where it lies up to its first pattern, and the components from there on.
    const std::string& base() const { return base_; }
    const std::vector<std::string>& pieces() const { return pieces_; }

    /// Whether a standardised path is one that it stands for, or lies below one. By the text alone.
    bool covers(std::string_view path) const;
    /// The component that stands for an entry of `folder`, if something below that is meant.
    std::optional<std::string> nameDirectlyIn(std::string_view folder) const;

 private:
    std::optional<std::vector<std::string>> piecesBelow(std::string_view folder) const;

    std::string base_;
    std::vector<std::string> pieces_;
};

/// The same as `covers` of the table path, for a single question: without taking it apart first.
/// For the tables' own paths, which have no ".." in them.
bool covers(std::string_view stored, const Host& host, std::string_view path);

/// Whether a component of a table path stands for a name.
bool standsFor(std::string_view piece, std::string_view name);

/// Where something may stand that a table path means, with its patterns filled in.
std::vector<std::string> possiblePlaces(std::string_view stored, const Host& host);

/// What stands on the machine at a list of table paths: in their order, each thing once, however
/// many of them lead there, and none that lies in another. No pattern stands for a link, so that
/// what a link leads to is named by the table alone. Looks at the disk; unreadable folders hold
/// nothing.
std::vector<std::string> existingPlaces(const std::vector<std::string>& stored, const Host& host);

}  // namespace tidewell
