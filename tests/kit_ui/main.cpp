#include <gtest/gtest.h>

#include <QtGui/qguiapplication.h>

int main(int count, char** words) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(count, words);
    testing::InitGoogleTest(&count, words);
    return RUN_ALL_TESTS();
}
