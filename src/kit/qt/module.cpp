#include "kit/qt/module.h"

#include <QtQml/qqmlengine.h>
#include <QtQml/qqmlextensionplugin.h>

#include "kit/qt/bundle_icons.h"

Q_IMPORT_QML_PLUGIN(TidewellPlugin)

namespace tidewell {

void importTidewellModule(QQmlEngine& engine) {
    // The types of a module that is linked in lie in the resources.
    engine.addImportPath("qrc:/");
    engine.addImageProvider(BundleIcons::name, new BundleIcons);  // the engine's from now on
}

}  // namespace tidewell
