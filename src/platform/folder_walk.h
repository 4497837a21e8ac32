#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

namespace tidewell {

/// What an entry is by itself: a link is a link, whatever it points to.
enum class EntryType { folder, regularFile, link, other };

struct FolderEntry {
    std::string name;
    EntryType type;
};

/// One entry met by a walk. The views hold until the visitor returns.
struct WalkEntry {
    std::string_view path;
    std::string_view name;
    EntryType type;
    int level;  ///< 1 for what lies directly in the folder that the walk began with
    std::span<const FolderEntry> siblings;  ///< all that the entry's folder holds, itself included
};

enum class Descent { enter, skip };
enum class HiddenEntries { visit, passOver };

/// Visits everything below `folder`, parents before their children, siblings in ascending byte
/// order. Real folders alone are entered, never links, never a folder that is its own ancestor
/// (a loop of mounts), and never a package: that is visited like a file. The visitor's answer
/// counts for folders only. Unreadable folders are passed over. A `folder` that is missing,
/// unreadable or a link visits nothing. Hidden entries are those whose name begins with a dot.
void walkFolder(const std::string& folder, HiddenEntries hidden,
                const std::function<Descent(const WalkEntry&)>& visit);

/// Whether a folder of this name is a package, shown to people as one thing: by its extension, in
/// any letter case.
bool isPackageName(std::string_view name);

}  // namespace tidewell
