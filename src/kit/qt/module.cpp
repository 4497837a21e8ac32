#include "kit/qt/module.h"

#include <QtGui/qfont.h>
#include <QtGui/qguiapplication.h>
#include <QtQml/qqmlengine.h>
#include <QtQml/qqmlextensionplugin.h>

#include "kit/qt/bundle_icons.h"

Q_IMPORT_QML_PLUGIN(TidewellPlugin)

namespace tidewell {

namespace {

/// Letters are smoothed in greys, for coloured fringes are seen on a dark ground.
void smoothInGreys() {
    qputenv("QSG_DISTANCEFIELD_ANTIALIASING", "gray");
    auto font = QGuiApplication::font();
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    QGuiApplication::setFont(font);
}

}  // namespace

void importTidewellModule(QQmlEngine& engine) {
    smoothInGreys();
    // The types of a module that is linked in lie in the resources.
    engine.addImportPath("qrc:/");
    engine.addImageProvider(BundleIcons::name, new BundleIcons);  // the engine's from now on
}

}  // namespace tidewell
