#include "platform/folder_walk.h"

#include <algorithm>
#include <array>
#include <vector>

#include "platform/path_text.h"
#include "platform/posix/folder_listing.h"
#include "platform/posix/reach.h"
#include "platform/posix/way_down.h"

namespace tidewell {
namespace {

using posix::Descriptor;
using posix::FolderPointer;
using posix::OpenFolder;
using posix::TreeFolder;

/// How many folders on the way down to the current one are held open.
constexpr std::size_t heldFolders = 16;

/// A folder that the walk has entered and not left.
struct EnteredFolder {
    using Folder = TreeFolder;

    FolderPointer<TreeFolder> folder;
    OpenFolder descriptor;
    std::size_t pathLength;            ///< of its own path, which its entries' paths begin with
    std::vector<FolderEntry> entries;  ///< in ascending byte order
    std::size_t next = 0;              ///< the entry to be visited next

    bool canBeLetGo() const { return true; }
};

class FolderWalk {
 public:
    FolderWalk(std::string folder, HiddenEntries hidden,
               const std::function<Descent(const WalkEntry&)>& visit)
        : path_(std::move(folder)), hidden_(hidden), visit_(visit) {}

    void run() {
        auto opened = posix::openFolder(path_);
        const auto which = posix::mountedFolder(opened.get());
        if (!which) return;
        const auto top = FolderPointer<TreeFolder>::top(*which);
        const auto open = top->hold(std::move(opened));
        enter(top, open);
        while (!entered_.isEmpty()) {
            if (entered_.last().next < entered_.last().entries.size()) {
                visitNextEntry();
            } else {
                leave();
            }
        }
    }

 private:
    void visitNextEntry() {
        auto& folder = entered_.last();
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
        if (!entered_.openLast()) return false;
        const auto& parent = entered_.last();
        auto opened = posix::openSubfolder(parent.descriptor->get(), name);
        if (!opened) return false;
        const auto which = posix::mountedFolder(opened.get());
        if (!which || parent.folder->isLoop(*which)) return false;
        const auto folder = parent.folder.below(name, *which);
        return enter(folder, folder->hold(std::move(opened)));
    }

    /// The path already ends in the folder's name.
    bool enter(const FolderPointer<TreeFolder>& folder, const OpenFolder& open) {
        auto entries = posix::listFolder(open->get());
        if (!entries) return false;
        std::ranges::sort(*entries, {}, &FolderEntry::name);
        entered_.enter({.folder = folder,
                        .descriptor = open,
                        .pathLength = path_.size(),
                        .entries = std::move(*entries)});
        return true;
    }

    void leave() {
        entered_.leave();
        if (!entered_.isEmpty()) returnToPathOfFolder();
    }

    void appendToPath(const std::string& name) {
        if (!path_.ends_with('/')) path_ += '/';
        path_ += name;
    }

    void returnToPathOfFolder() { path_.resize(entered_.last().pathLength); }

    std::string path_;
    const HiddenEntries hidden_;
    const std::function<Descent(const WalkEntry&)>& visit_;
    posix::WayDown<EnteredFolder> entered_{heldFolders};
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
