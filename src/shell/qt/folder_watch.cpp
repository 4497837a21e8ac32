#include "shell/qt/folder_watch.h"

#include <QtCore/qfile.h>
#include <QtCore/qfileinfo.h>

#include <utility>

namespace tidewell {

FolderWatch::FolderWatch(const std::string& folder, std::function<void()> changed)
    : folder_(QFile::decodeName(folder.c_str())) {
    follow();
    QObject::connect(&watcher_, &QFileSystemWatcher::directoryChanged, &watcher_,
                     [this, changed = std::move(changed)] {
                         follow();
                         changed();
                     });
}

void FolderWatch::follow() {
    auto wanted = folder_;
    while (!QFileInfo(wanted).isDir()) wanted = QFileInfo(wanted).path();
    const auto watched = watcher_.directories();
    if (watched.contains(wanted)) return;
    if (!watched.isEmpty()) watcher_.removePaths(watched);
    watcher_.addPath(wanted);
}

}  // namespace tidewell
