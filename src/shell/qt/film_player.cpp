#include "shell/qt/film_player.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qdir.h>
#include <QtCore/qpluginloader.h>

namespace tidewell {

void chooseFilmPlayer() {
    qputenv("QT_MEDIA_BACKEND", "ffmpeg");
}

bool hasFilmPlayer() {
    for (const auto& folder : QCoreApplication::libraryPaths()) {
        const QDir plugins(folder + "/multimedia");
        for (const auto& name : plugins.entryList({"*ffmpegmediaplugin*"}, QDir::Files))
            if (QPluginLoader(plugins.filePath(name)).load()) return true;
    }
    return false;
}

}  // namespace tidewell
