#pragma once

#include <QtCore/qfilesystemwatcher.h>
#include <QtCore/qobject.h>
#include <QtCore/qstring.h>

#include <functional>
#include <string>

namespace tidewell {

/// Calls `changed` whenever an entry of a folder has come, gone or been replaced, also by another
/// program. A folder that is not there yet is waited for. Main thread only.
class FolderWatch {
 public:
    FolderWatch(const std::string& folder, std::function<void()> changed);

 private:
    void follow();

    const QString folder_;
    QFileSystemWatcher watcher_;
};

}  // namespace tidewell
