#include <gtest/gtest.h>

#include <QtWidgets/qapplication.h>

#include "shell/qt/film_player.h"

namespace {

/// Whatever a .qml file complains of is a fault of the test in hand.
void failOnWarnings(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type != QtDebugMsg && type != QtInfoMsg && message.contains(".qml"))
        ADD_FAILURE() << message.toStdString();
    else
        fprintf(stderr, "%s\n", qPrintable(message));
}

}  // namespace

int main(int count, char** words) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    tidewell::chooseFilmPlayer();
    const QApplication toolkit(count, words);
    QApplication::setQuitOnLastWindowClosed(false);
    qInstallMessageHandler(failOnWarnings);
    testing::InitGoogleTest(&count, words);
    return RUN_ALL_TESTS();
}
