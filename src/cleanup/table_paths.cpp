#include "cleanup/table_paths.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "platform/files.h"
#include "platform/folder_walk.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

bool isPattern(std::string_view piece) {
    return piece.ends_with('*');
}

/// The entries of folders, each read once.
class Listings {
 public:
    const std::vector<FolderEntry>& of(const std::string& folder) {
        const auto [listing, isNew] = listings_.try_emplace(folder);
        if (isNew)
            walkFolder(folder, HiddenEntries::visit, [&entries = listing->second](const auto& met) {
                entries.push_back({std::string(met.name), met.type});
                return Descent::skip;
            });
        return listing->second;
    }

 private:
    std::map<std::string, std::vector<FolderEntry>> listings_;
};

bool canStandAt(EntryType type, bool isLast) {
    return type == EntryType::folder || (isLast && type != EntryType::link);
}

std::vector<std::string> placesOf(const TablePath& path, Listings& listings) {
    std::vector<std::string> places = {path.base()};
    for (const auto& piece : path.pieces()) {
        const bool isLast = &piece == &path.pieces().back();
        std::vector<std::string> next;
        for (const auto& place : places) {
            if (!isPattern(piece)) {
                next.push_back(joinPath(place, piece));
                continue;
            }
            for (const auto& entry : listings.of(place))
                if (standsFor(piece, entry.name) && canStandAt(entry.type, isLast))
                    next.push_back(joinPath(place, entry.name));
        }
        places = std::move(next);
    }
    return places;
}

using Places = std::set<std::string, std::less<>>;

bool liesInOneOf(std::string_view path, const Places& places) {
    for (auto above = parentPath(path); above.size() > 1; above = parentPath(above))
        if (places.contains(above)) return true;
    return false;
}

/// The first component of what is left of a path, which it leaves behind; empty at the end.
std::string_view takePiece(std::string_view& path) {
    path.remove_prefix(std::min(path.find_first_not_of('/'), path.size()));
    const auto piece = path.substr(0, path.find('/'));
    path.remove_prefix(piece.size());
    return piece;
}

}  // namespace

bool standsFor(std::string_view piece, std::string_view name) {
    if (!isPattern(piece)) return piece == name;
    piece.remove_suffix(1);
    return name.starts_with(piece);
}

TablePath::TablePath(std::string_view stored, const Host& host) {
    if (stored.starts_with('/')) {
        base_ = standardizedPath(stored);
        return;
    }
    std::string_view plain = stored;
    for (const auto piece : pathPieces(stored)) {
        if (pieces_.empty() && isPattern(piece))
            plain = stored.substr(0, static_cast<std::size_t>(piece.data() - stored.data()));
        if (!pieces_.empty() || isPattern(piece)) pieces_.emplace_back(piece);
    }
    while (plain.size() > 1 && plain.ends_with('/')) plain.remove_suffix(1);
    base_ = standardizedPath(host.expand(plain));
}

std::optional<std::vector<std::string>> TablePath::piecesBelow(std::string_view folder) const {
    std::vector<std::string> left;
    if (isBelow(base_, folder)) {
        for (const auto piece : pathPieces(pathRelativeTo(base_, folder))) left.emplace_back(piece);
        left.insert(left.end(), pieces_.begin(), pieces_.end());
        return left;
    }
    if (!isAtOrBelow(folder, base_)) return std::nullopt;
    const auto rest = folder == base_ ? std::vector<std::string_view>{}
                                      : pathPieces(pathRelativeTo(folder, base_));
    if (rest.size() > pieces_.size() || !std::equal(rest.begin(), rest.end(), pieces_.begin(),
                                                    [](std::string_view name, const auto& piece) {
                                                        return standsFor(piece, name);
                                                    }))
        return std::nullopt;
    left.assign(pieces_.begin() + static_cast<std::ptrdiff_t>(rest.size()), pieces_.end());
    return left;
}

bool TablePath::covers(std::string_view path) const {
    if (!isAtOrBelow(path, base_)) return false;
    auto names =
        path == base_ ? std::vector<std::string_view>{} : pathPieces(pathRelativeTo(path, base_));
    if (names.size() < pieces_.size()) return false;
    return std::equal(
        pieces_.begin(), pieces_.end(), names.begin(),
        [](const auto& piece, std::string_view name) { return standsFor(piece, name); });
}

bool covers(std::string_view stored, const Host& host, std::string_view path) {
    const auto [folder, rest] = host.split(stored);
    if (folder.empty()) return TablePath(stored, host).covers(path);
    if (!isAtOrBelow(path, folder)) return false;
    auto left = path.substr(folder.size());
    for (auto wanted = rest; !wanted.empty();) {
        const auto piece = takePiece(wanted);
        if (piece.empty()) break;
        const auto name = takePiece(left);
        if (name.empty() || !standsFor(piece, name)) return false;
    }
    return true;
}

std::optional<std::string> TablePath::nameDirectlyIn(std::string_view folder) const {
    const auto left = piecesBelow(folder);
    if (!left || left->empty()) return std::nullopt;
    return left->front();
}

std::vector<std::string> possiblePlaces(std::string_view stored, const Host& host) {
    Listings listings;
    return placesOf(TablePath(stored, host), listings);
}

std::vector<std::string> existingPlaces(const std::vector<std::string>& stored, const Host& host) {
    Listings listings;
    std::vector<std::string> found;
    std::vector<std::string> real;
    Places distinct;
    for (const auto& path : stored)
        for (auto& place : placesOf(TablePath(path, host), listings)) {
            if (!fileExists(place)) continue;
            auto location = realLocation(place).value_or(place);
            if (!distinct.insert(location).second) continue;
            found.push_back(std::move(place));
            real.push_back(std::move(location));
        }
    std::vector<std::string> outermost;
    for (std::size_t i = 0; i < found.size(); ++i)
        if (!liesInOneOf(real[i], distinct)) outermost.push_back(std::move(found[i]));
    return outermost;
}

}  // namespace tidewell
