// tidewell-gallery DIR [--scale N]: draws every component in every state, one picture a page. Fails
// if the pictures would not show what people see, or if a page makes Qt complain.

#include <QtCore/qcommandlineparser.h>
#include <QtCore/qdir.h>
#include <QtCore/qelapsedtimer.h>
#include <QtGui/qguiapplication.h>
#include <QtQml/qqmlengine.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickview.h>

#include <cstdio>
#include <cstdlib>

#include "kit/qt/module.h"

namespace {

int complaints = 0;

void complain(const QString& text) {
    std::fprintf(stderr, "tidewell-gallery: %s\n", qPrintable(text));
    ++complaints;
}

void countWarnings(QtMsgType type, const QMessageLogContext&, const QString& text) {
    const bool isAboutUs = !text.startsWith("QStandardPaths");
    if (type != QtDebugMsg && type != QtInfoMsg && isAboutUs) complain(text);
}

/// Lets the page settle: what appears at first, and what only a second frame shows.
void draw(QQuickView& view) {
    QElapsedTimer clock;
    clock.start();
    int frames = 0;
    QObject::connect(&view, &QQuickView::frameSwapped, &view, [&frames] { ++frames; });
    view.show();
    while (frames < 3 && clock.elapsed() < 20000) {
        view.update();
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    }
}

void photograph(const QString& page, const QDir& folder, const QString& suffix) {
    QQuickView view;
    tidewell::importTidewellModule(*view.engine());
    view.setColor(Qt::black);
    view.setSource(QUrl("qrc:/gallery/" + page));
    if (view.status() != QQuickView::Ready) return complain(page + " cannot be loaded");
    draw(view);
    if (view.rendererInterface()->graphicsApi() != QSGRendererInterface::OpenGL)
        return complain("the components can only be seen with OpenGL: run this with a display");
    const auto file = folder.filePath(page.chopped(4).toLower() + suffix + ".png");
    if (!view.grabWindow().save(file)) complain("cannot write " + file);
}

}  // namespace

int main(int count, char** words) {
    QStringList arguments;
    for (int i = 0; i < count; ++i) arguments << QString::fromLocal8Bit(words[i]);
    QCommandLineParser parser;
    const QCommandLineOption scale("scale", "Pixels to a point.", "N", "1");
    parser.addOption(scale);
    parser.addPositionalArgument("DIR", "Where to put the pictures.");
    parser.process(arguments);
    if (parser.positionalArguments().size() != 1) parser.showHelp(2);

    qputenv("QT_SCALE_FACTOR", parser.value(scale).toLocal8Bit());
    QGuiApplication application(count, words);
    qInstallMessageHandler(countWarnings);

    const QDir folder(parser.positionalArguments().first());
    if (!folder.mkpath(".")) complain("cannot make " + folder.path());
    const QString suffix = parser.isSet(scale) ? "@" + parser.value(scale) + "x" : QString();
    auto pages = QDir(":/gallery").entryList({"*.qml"});
    for (const auto* part : {"Page.qml", "Specimen.qml"}) pages.removeOne(part);
    if (pages.isEmpty()) complain("there are no pages");
    for (const auto& page : pages) photograph(page, folder, suffix);
    return complaints == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
