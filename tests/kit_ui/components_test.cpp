#include <gtest/gtest.h>

#include <QtGui/qguiapplication.h>
#include <QtQml/qqmlcomponent.h>
#include <QtQml/qqmlengine.h>

#include <memory>

#include "kit/qt/module.h"

namespace tidewell {
namespace {

TEST(Components, AreFoundInTheModule) {
    QQmlEngine engine;
    importTidewellModule(engine);
    QQmlComponent component(&engine);
    component.setData("import Tidewell\nLabel { text: 'x' }", QUrl());
    const std::unique_ptr<QObject> label(component.create());
    ASSERT_TRUE(label) << component.errorString().toStdString();
}

}  // namespace
}  // namespace tidewell

int main(int count, char** words) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(count, words);
    testing::InitGoogleTest(&count, words);
    return RUN_ALL_TESTS();
}
