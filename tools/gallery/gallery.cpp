// tidewell-gallery DIR [--system macos|linux] [--scale N] [--only WORD] [--size WxH] [--motion]:
// draws every component in every state, one picture a page, and the window with each screen in each
// state, as it is over a machine of that system. Fails if the pictures would not show what people
// see, or if anything drawn makes Qt complain. With --motion it draws, instead, whatever moves in
// the window as strips of frames, as if there were a graphics card.

#include <QtCore/qcommandlineparser.h>
#include <QtCore/qdir.h>
#include <QtCore/qelapsedtimer.h>
#include <QtCore/qthreadpool.h>
#include <QtGui/qcursor.h>
#include <QtGui/qguiapplication.h>
#include <QtQml/qqmlengine.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickview.h>

#include <cstdio>
#include <cstdlib>

#include "kit/qt/module.h"
#include "kit/qt/motion.h"
#include "kit/qt/window_drawing.h"
#include "motion/passages.h"
#include "motion/stepped_time.h"
#include "motion/strip.h"
#include "screens/states.h"
#include "shell/qt/film_player.h"
#include "shell/qt/popover.h"
#include "shell/qt/qt_main_loop.h"
#include "support/accessible_tree.h"

namespace tidewell::gallery {

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

/// Lets the window settle: what appears at first, what only a second frame shows, and what is told
/// in a later turn.
void draw(QQuickWindow& window) {
    QElapsedTimer clock;
    clock.start();
    int frames = 0;
    QObject counting;
    QObject::connect(&window, &QQuickWindow::frameSwapped, &counting, [&frames] { ++frames; });
    window.show();
    QCursor::setPos(window.mapToGlobal(QPoint(2, 2)));  // nothing there to be pointed at
    while (frames < 3 && clock.elapsed() < 20000) {
        window.update();
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
        QThreadPool::globalInstance()->waitForDone();  // pictures that are painted meanwhile
    }
}

/// What to draw, and where the pictures go.
struct Order {
    QDir folder;
    QString suffix;
    QString only;
    QSize size;  ///< of the window
    System system = System::macOS;

    bool wants(const QString& name) const { return name.contains(only); }
    void save(QQuickWindow& window, const QString& name) const {
        draw(window);
        if (window.rendererInterface()->graphicsApi() != QSGRendererInterface::OpenGL)
            return complain("the components can only be seen with OpenGL: run this with a display");
        save(window.grabWindow(), name);
    }
    void save(const QImage& picture, const QString& name) const {
        const auto file = folder.filePath(name + suffix + ".png");
        if (!picture.save(file)) complain("cannot write " + file);
    }
};

void drawPage(const QString& page, const Order& order) {
    const auto name = page.chopped(4).toLower();
    if (!order.wants(name)) return;
    QQuickView view;
    importTidewellModule(*view.engine());
    view.setColor(Qt::black);
    view.setSource(QUrl("qrc:/gallery/" + page));
    if (view.status() != QQuickView::Ready) return complain(page + " cannot be loaded");
    order.save(view, name);
}

void drawPages(const Order& order) {
    auto pages = QDir(":/gallery").entryList({"*.qml"});
    for (const auto* part : {"Page.qml", "Specimen.qml"}) pages.removeOne(part);
    if (pages.isEmpty()) complain("there are no pages");
    for (const auto& page : pages) drawPage(page, order);
}

QAccessibleInterface* control(QQuickWindow& window, const QString& name) {
    auto* found = test::findAccessible(window, [&](QAccessibleInterface& place) {
        return place.text(QAccessible::Name) == name && place.actionInterface();
    });
    if (!found) complain("there is no " + name + " to press");
    return found;
}

/// One control after the other, with " > " between their names.
void press(QQuickWindow& window, const QString& names) {
    for (const auto& name : names.split(" > ")) {
        draw(window);
        if (auto* found = control(window, name))
            found->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }
}

void drawScreens(const Order& order) {
    for (const auto& state : screenStates()) {
        if (!order.wants(state.name) || !state.isOf(order.system)) continue;
        Sample sample(order.system);
        auto& window = sample.window->window();
        window.resize(order.size);
        state.setUp(sample);
        if (state.pressed) press(window, state.pressed);
        order.save(window, state.name);
    }
}

void drawPopover(const Order& order) {
    const auto* name = "menu-bar";
    if (!order.wants(name)) return;
    const Sample sample(order.system);
    sample.application->sums->totalFreedBytes = 23'481'700'000;
    Popover popover(*sample.application);
    popover.open({700, 0, 20, 24});
    order.save(*popover.window(), name);
}

void drawPictures(const Order& order) {
    Motion::setReduced(true);  // a picture shows where a passage leads
    drawPages(order);
    drawScreens(order);
    drawPopover(order);
}

void begin(const Passage& passage, Sample& sample) {
    auto& window = sample.window->window();
    if (passage.cause.to) state(passage.cause.to).setUp(sample);
    if (passage.cause.change) passage.cause.change(sample);
    if (passage.cause.pressed) press(window, passage.cause.pressed);
    const auto* place =
        passage.cause.pointedAt ? control(window, passage.cause.pointedAt) : nullptr;
    if (place) QCursor::setPos(place->rect().center());
}

/// The first frames follow each other as they do for the user; what lasts is seen less often.
std::vector<int> timesOf(const Passage& passage) {
    constexpr int shown = 12;
    std::vector<int> times;
    for (int index = 0; index < shown; ++index) {
        const double share = static_cast<double>(index) / (shown - 1);
        times.push_back(std::max(16 * index, static_cast<int>(passage.lasts * share * share)));
    }
    return times;
}

void drawPassage(const Passage& passage, SteppedTime& time, const Order& order) {
    Sample sample(order.system);
    auto& window = sample.window->window();
    window.resize(order.size);
    const auto& from = state(passage.from);
    from.setUp(sample);
    draw(window);
    WindowDrawing::of(&window)->assume(Drawing::byGraphicsCard);
    if (from.pressed) press(window, from.pressed);
    time.pass(3000, false);
    std::vector<Frame> frames{{0, window.grabWindow()}};
    begin(passage, sample);
    for (int now = 0; const int next : timesOf(passage)) {
        time.pass(next - now, passage.cause.hasFilm);
        now = next;
        frames.push_back({now, window.grabWindow()});
    }
    order.save(strip(frames), QString("motion-") + passage.name);
}

void drawMotion(const Order& order) {
    SteppedTime time;
    for (const auto& passage : passages())
        if (order.wants(QString("motion-") + passage.name)) drawPassage(passage, time, order);
}

int run(int count, char** words) {
    QStringList arguments;
    for (int i = 0; i < count; ++i) arguments << QString::fromLocal8Bit(words[i]);
    QCommandLineParser parser;
    const QCommandLineOption scale("scale", "Pixels to a point.", "N", "1");
    const QCommandLineOption only("only", "Draw only pictures with this in their name.", "WORD");
    const QCommandLineOption size("size", "The window's size in points.", "WxH", "1120x740");
    const QCommandLineOption system("system", "The machine's: macos or linux.", "SYSTEM", "macos");
    const QCommandLineOption motion("motion", "Draw strips of whatever moves.");
    parser.addOptions({scale, only, size, system, motion});
    parser.addPositionalArgument("DIR", "Where to put the pictures.");
    parser.process(arguments);
    const auto lengths = parser.value(size).split('x');
    if (parser.positionalArguments().size() != 1 || lengths.size() != 2) parser.showHelp(2);

    qputenv("QT_SCALE_FACTOR", parser.value(scale).toLocal8Bit());
    if (parser.isSet(motion))
        qputenv("QSG_RENDER_LOOP", "basic");  // time is stepped where it draws
    chooseFilmPlayer();
    const QGuiApplication application(count, words);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    qInstallMessageHandler(countWarnings);
    const QtMainLoop loop;

    const Order order{
        .folder = QDir(parser.positionalArguments().first()),
        .suffix = parser.isSet(scale) ? "@" + parser.value(scale) + "x" : QString(),
        .only = parser.value(only),
        .size = {lengths[0].toInt(), lengths[1].toInt()},
        .system = parser.value(system) == "linux" ? System::linux : System::macOS,
    };
    if (!order.folder.mkpath(".")) complain("cannot make " + order.folder.path());
    if (parser.isSet(motion))
        drawMotion(order);
    else
        drawPictures(order);
    return complaints == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

}  // namespace tidewell::gallery

int main(int count, char** words) {
    return tidewell::gallery::run(count, words);
}
