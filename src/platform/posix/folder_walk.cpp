#include "platform/folder_walk.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "platform/path_text.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/folder_identity.h"
#include "platform/posix/folder_listing.h"

namespace tidewell {
namespace {

using posix::Descriptor;
using posix::FolderIdentity;

/// How many folders on the way down to the current one are held open. Those above are opened again
/// by their names when the walk comes back to them, so that no depth exhausts the descriptors.
constexpr std::size_t heldFolders = 16;

/// A folder that the walk has entered and not left.
struct EnteredFolder {
    Descriptor descriptor;
    FolderIdentity identity;
    std::size_t pathLength;            ///< of its own path, which its entries' paths begin with
    std::vector<FolderEntry> entries;  ///< in ascending byte order
    std::size_t next = 0;              ///< the entry to be visited next

    /// The entry visited last, which leads to the entered folder below this one.
    const std::string& nameBelow() const { return entries[next - 1].name; }
};

Descriptor openFolderAt(int parent, const std::string& name) {
    return Descriptor(::openat(parent, name.c_str(), posix::openFolderFlags));
}

class FolderWalk {
 public:
    FolderWalk(std::string folder, HiddenEntries hidden,
               const std::function<Descent(const WalkEntry&)>& visit)
        : path_(std::move(folder)), hidden_(hidden), visit_(visit) {}

    void run() {
        enter(posix::openFolder(path_));
        while (!entered_.empty()) {
            if (entered_.back().next < entered_.back().entries.size()) {
                visitNextEntry();
            } else {
                leave();
            }
        }
    }

 private:
    void visitNextEntry() {
        auto& folder = entered_.back();
        const auto& entry = folder.entries[folder.next++];
        if (hidden_ == HiddenEntries::passOver && entry.name.starts_with('.')) return;
        appendToPath(entry.name);
        const auto descent = visit_({.path = path_,
                                     .name = entry.name,
                                     .type = entry.type,
                                     .level = static_cast<int>(entered_.size()),
                                     .siblings = folder.entries});
        const bool isWanted = entry.type == EntryType::folder && descent == Descent::enter &&
                              !isPackageName(entry.name);
        if (!isWanted || !enterNamed(entry.name)) returnToPathOfFolder();
    }

    bool enterNamed(const std::string& name) {
        return holdOpen(entered_.size() - 1) &&
               enter(openFolderAt(entered_.back().descriptor.get(), name));
    }

    /// The path already ends in the folder's name.
    bool enter(Descriptor descriptor) {
        if (!descriptor) return false;
        const auto identity = posix::identityOf(descriptor.get());
        if (!identity || isOwnAncestor(*identity)) return false;
        auto entries = posix::listFolder(descriptor.get());
        if (!entries) return false;
        std::ranges::sort(*entries, {}, &FolderEntry::name);
        entered_.push_back({std::move(descriptor), *identity, path_.size(), std::move(*entries)});
        if (entered_.size() > heldFolders) letGo(entered_.size() - 1 - heldFolders);
        return true;
    }

    void leave() {
        entered_.pop_back();
        if (!entered_.empty()) returnToPathOfFolder();
    }

    bool isOwnAncestor(const FolderIdentity& identity) const {
        return std::ranges::find(entered_, identity, &EnteredFolder::identity) != entered_.end();
    }

    /// Opens the folder at `depth` again if it was let go, and with it those right above, which
    /// will be wanted next. Fails if another folder stands in its place by now.
    bool holdOpen(std::size_t depth) {
        if (entered_[depth].descriptor) return true;
        for (std::size_t i = 1; i <= depth; ++i) {
            if (entered_[i].descriptor) continue;
            const auto& parent = entered_[i - 1];
            auto again = openFolderAt(parent.descriptor.get(), parent.nameBelow());
            if (!again || posix::identityOf(again.get()) != entered_[i].identity) return false;
            entered_[i].descriptor = std::move(again);
            if (i >= heldFolders) letGo(i - heldFolders);
        }
        return true;
    }

    /// The way down begins at the first folder, which is always held.
    void letGo(std::size_t depth) {
        if (depth > 0) entered_[depth].descriptor = Descriptor();
    }

    void appendToPath(const std::string& name) {
        if (!path_.ends_with('/')) path_ += '/';
        path_ += name;
    }

    void returnToPathOfFolder() { path_.resize(entered_.back().pathLength); }

    std::string path_;
    const HiddenEntries hidden_;
    const std::function<Descent(const WalkEntry&)>& visit_;
    std::vector<EnteredFolder> entered_;
};

constexpr std::array<std::string_view, 30> packageExtensions = {
    "app",        "bundle",    "plugin",        "kext",         "prefpane",     "qlgenerator",
    "saver",      "service",   "wdgt",          "xpc",          "appex",        "pkg",
    "mpkg",       "rtfd",      "photoslibrary", "musiclibrary", "tvlibrary",    "imovielibrary",
    "fcpbundle",  "logicx",    "band",          "key",          "numbers",      "pages",
    "playground", "xcodeproj", "xcworkspace",   "xcarchive",    "sparsebundle", "backupbundle",
};

}  // namespace

void walkFolder(const std::string& folder, HiddenEntries hidden,
                const std::function<Descent(const WalkEntry&)>& visit) {
    FolderWalk(folder, hidden, visit).run();
}

bool isPackageName(std::string_view name) {
    const auto extension = lowerCased(pathExtension(name));
    return std::ranges::find(packageExtensions, extension) != packageExtensions.end();
}

}  // namespace tidewell
