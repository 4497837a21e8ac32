#include <gtest/gtest.h>

#include <QtGui/qaccessible.h>
#include <QtGui/qevent.h>
#include <QtGui/qimage.h>
#include <QtTest/qtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "kit/qt/motion.h"
#include "kit/settling.h"
#include "stage.h"

namespace tidewell::test {
namespace {

void press(QQuickWindow& window, Qt::Key key) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&window, &event);
    }
    Stage::turn();
}

QAccessibleInterface* accessible(QQuickItem* item) {
    return QAccessible::queryAccessibleInterface(item);
}

struct Spoken {
    const char* text;
    QAccessible::Role role;
    const char* name;
};

TEST(Components, TellAssistiveToolsWhatTheyAre) {
    Stage stage;
    const std::vector<Spoken> rows = {
        {"PillButton { text: 'Scan My Mac'; symbol: 'sparkles' }", QAccessible::Button,
         "Scan My Mac"},
        {"GhostPillButton { text: 'Back' }", QAccessible::Button, "Back"},
        {"ScanCircleButton { title: 'Deep Scan'; symbol: 'scope' }", QAccessible::Button,
         "Deep Scan"},
        {"SidebarRow { label: 'Apps'; isActive: true }", QAccessible::Button, "Apps"},
        {"GradientBar { fraction: 0.5 }", QAccessible::ProgressBar, ""},
        {"FigureText { text: '42%' }", QAccessible::StaticText, "42%"},
        {"CountUpBytes { target: 2500000 }", QAccessible::StaticText, "2.5 MB"},
        {"BrandLogo {}", QAccessible::Graphic, "Tidewell"},
        {"BrandLogo { asset: BrandLogo.Mark }", QAccessible::Graphic, "Tidewell"},
    };
    for (const auto& row : rows) {
        auto* interface = accessible(stage.put(row.text));
        ASSERT_TRUE(interface) << row.text;
        EXPECT_EQ(interface->role(), row.role) << row.text;
        EXPECT_EQ(interface->text(QAccessible::Name), row.name);
    }
    EXPECT_TRUE(accessible(stage.put("SidebarRow { isActive: true }"))->state().selected);
}

double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

QColor over(const QColor& ground, const QColor& ink) {
    const auto mixed = [&](float below, float above) {
        return below + (above - below) * ink.alphaF();
    };
    return QColor::fromRgbF(mixed(ground.redF(), ink.redF()), mixed(ground.greenF(), ink.greenF()),
                            mixed(ground.blueF(), ink.blueF()));
}

double contrast(const QColor& ground, const QColor& ink) {
    const auto [darker, lighter] = std::minmax({luminance(ground), luminance(over(ground, ink))});
    return (lighter + 0.05) / (darker + 0.05);
}

TEST(Components, WhatIsWrittenCanBeReadOnWhateverItStandsOn) {
    constexpr double text = 4.5;
    constexpr double symbol = 3;
    struct Pair {
        const char* what;
        const char* ground;
        const char* ink;
        double least;
    };
    const Pair pairs[] = {
        {"secondary text on a lit card", "lit", "Theme.secondary", text},
        {"faint text on a lit card", "lit", "Theme.faint", text},
        {"faint text on the canvas", "Theme.base", "Theme.faint", text},
        {"a symbol on a disc", "Theme.discCore(p)", "'white'", symbol},
        {"a button's words", "p.primary", "Theme.textOn(p.primary)", text},
        {"a badge", "Qt.tint(lit, Theme.withOpacity(p.primary, 0.18))", "Theme.ink(p.primary)",
         text},
        {"the badge of what is dear", "Qt.tint(lit, Theme.withOpacity(Theme.destructive, 0.18))",
         "Theme.ink(Theme.destructive)", text},
        {"the Trash", "Qt.tint(lit, Theme.withOpacity(Theme.destructive, 0.10))",
         "Theme.withOpacity(Theme.destructive, 0.90)", symbol},
        {"a button that destroys", "Theme.destructive", "Theme.textOn(Theme.destructive)", text},
        {"a button that is disabled", "lit",
         "Theme.withOpacity(Theme.text, Theme.quiet(0).a * Theme.disabledOpacity)", text},
    };
    Stage stage;
    for (const auto* accent : {"green", "blue", "violet", "amber", "cyan", "teal"}) {
        for (const auto& pair : pairs) {
            const auto* item =
                stage.put(QString("Item { property sectionPalette p: Kit.%1;"
                                  "property color lit: Qt.tint(Theme.panelTop(p.primary),"
                                  " Theme.withOpacity(p.primary, 0.08));"
                                  "property color ground: %2; property color ink: %3 }")
                              .arg(accent, pair.ground, pair.ink));
            ASSERT_TRUE(item);
            EXPECT_GE(contrast(item->property("ground").value<QColor>(),
                               item->property("ink").value<QColor>()),
                      pair.least)
                << pair.what << " in " << accent;
        }
    }
}

TEST(Components, TheLogosMarkIsKnownByItsShapeAlone) {
    const QImage mark(":/Tidewell/logos/logo-mark.svg");
    ASSERT_EQ(mark.size(), QSize(128, 128));
    const auto isFilled = [&](int x, int y) { return mark.pixelColor(x, y).alpha() == 255; };
    EXPECT_TRUE(isFilled(64, 7)) << "the well's rim";
    EXPECT_TRUE(isFilled(64, 110)) << "the water";
    EXPECT_EQ(mark.pixelColor(64, 30).alpha(), 0) << "the sky above it";
    EXPECT_EQ(mark.pixelColor(2, 2).alpha(), 0);
}

TEST(Components, StandWithExtremeInputsWithoutComplaint) {
    Stage stage;
    for (const auto* text : {
             "AmbientBackground { width: 400; height: 300 }",
             "GlowCard { Label { text: 'x' } }",
             "GlowCard { width: 0; height: 0; featured: true; vivid: true }",
             "ScreenHeader { title: 'Overview'; width: 20 }",
             "IconChip { symbol: 'sparkles' }",
             "IconChip { symbol: 'no such symbol'; size: 0 }",
             "GlossyBlob { symbol: '' }",
             "Donut { used: 2; Label { text: 'x' } }",
             "RingGauge { progress: -1; diameter: 0 }",
             "DotGauge { used: NaN }",
             "PillButton {}",
             "PillButton { width: 10; text: 'long' }",
             "FigureText { text: '' }",
             "CountUpBytes { target: -1; duration: -1 }",
         })
        stage.put(text);
}

TEST(Gauges, DrawNoMoreThanTheWholeAndNeverNothing) {
    Stage stage;
    const struct {
        const char* input;
        double fill;
    } rows[] = {{"-1", 0.001}, {"0", 0.001}, {"0.25", 0.25}, {"1", 1}, {"7", 1}};
    for (const auto& row : rows) {
        auto* ring = stage.put(QString("RingGauge { progress: %1 }").arg(row.input));
        EXPECT_DOUBLE_EQ(ring->property("fill").toDouble(), row.fill);
        EXPECT_DOUBLE_EQ(ring->property("gradientSpan").toDouble(), row.fill);
        auto* donut = stage.put(QString("Donut { used: %1 }").arg(row.input));
        EXPECT_DOUBLE_EQ(donut->property("fill").toDouble(), row.fill);
        EXPECT_DOUBLE_EQ(donut->property("gradientSpan").toDouble(), 1);
    }
    auto* bar = stage.put("GradientBar { fraction: 3; width: 90 }");
    EXPECT_DOUBLE_EQ(bar->childItems().first()->width(), 90);
}

TEST(Buttons, ArePressedByKeysAndByAssistiveToolsUnlessDisabled) {
    Stage stage;
    for (const auto* kind : {"PillButton", "GhostPillButton", "ScanCircleButton", "SidebarRow"}) {
        auto* button =
            stage.put(QString("%1 { property int count; onClicked: ++count }").arg(kind));
        button->forceActiveFocus(Qt::TabFocusReason);
        ASSERT_TRUE(button->hasActiveFocus()) << kind;
        int expected = 0;
        for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
            press(stage.window(), key);
            EXPECT_EQ(button->property("count").toInt(), ++expected) << kind << " " << key;
        }
        auto* actions = accessible(button)->actionInterface();
        ASSERT_TRUE(actions) << kind;
        actions->doAction(QAccessibleActionInterface::pressAction());
        EXPECT_EQ(button->property("count").toInt(), ++expected) << kind;

        button->setEnabled(false);
        press(stage.window(), Qt::Key_Return);
        press(stage.window(), Qt::Key_Space);
        EXPECT_EQ(button->property("count").toInt(), expected) << kind;
    }
}

TEST(Buttons, AreReachedWithTabAndShowIt) {
    Stage stage;
    auto* row = stage.put("Row { PillButton { text: 'a' } GhostPillButton { text: 'b' } }");
    row->childItems().first()->forceActiveFocus(Qt::TabFocusReason);
    press(stage.window(), Qt::Key_Tab);
    auto* second = row->childItems().at(1);
    ASSERT_TRUE(second->hasActiveFocus());
    EXPECT_TRUE(second->property("visualFocus").toBool());
    int rings = 0;
    for (const auto* child : second->childItems())
        if (QString(child->metaObject()->className()).startsWith("FocusRing") && child->isVisible())
            ++rings;
    EXPECT_EQ(rings, 1);
}

QColor accentOf(QQuickItem* item) {
    return item->property("accent").value<QColor>();
}

TEST(Ambient, HoldsForAllInsideUntilAnotherIsSet) {
    Stage stage;
    auto* inside = stage.make("Item { property color accent: Ambient.palette.primary }");
    const auto green = accentOf(inside);

    auto* outer = stage.put(
        "Item { Ambient.palette: Kit.blue; property color accent: "
        "Ambient.palette.primary; Item { Item {} } }");
    const auto blue = accentOf(outer);
    EXPECT_NE(green, blue);

    inside->setParentItem(outer->childItems().first()->childItems().first());
    EXPECT_EQ(accentOf(inside), blue) << "a tree that is put into another one";
    auto* between = stage.make(
        "Item { Ambient.palette: isViolet ? Kit.violet : undefined; "
        "property bool isViolet: true }");
    inside->setParentItem(between);
    between->setParentItem(outer);
    EXPECT_NE(accentOf(inside), blue);
    between->setProperty("isViolet", false);
    EXPECT_EQ(accentOf(inside), blue) << "what was set is taken back";
    inside->setParentItem(nullptr);
    EXPECT_EQ(accentOf(inside), green);
}

TEST(Motion, StandsStillWhereTheProcessorDraws) {
    Stage stage;
    auto* canvas = stage.put("AmbientBackground { width: 100; height: 100; time: 5 }");
    stage.window().grabWindow();
    Stage::turn();
    EXPECT_EQ(canvas->property("t").toDouble(), 0);
    auto* blob = stage.put("GlossyBlob { symbol: 'scope'; time: 3 }");
    EXPECT_EQ(blob->rotation(), 0);
    EXPECT_EQ(blob->scale(), 1);
    auto* figure = stage.put("CountUpBytes { target: 5000; duration: 100 }");
    EXPECT_TRUE(figure->property("finished").toBool());
    EXPECT_EQ(figure->property("shown").toString(), "5 KB");
}

TEST(Motion, StandsStillWhenTheUserWantsLess) {
    Stage stage;
    auto* canvas = stage.make("AmbientBackground { time: 5 }");
    auto* figure = stage.make("CountUpBytes { target: 5000; duration: 100 }");
    EXPECT_EQ(canvas->property("t").toDouble(), 5);
    EXPECT_FALSE(figure->property("finished").toBool());
    Motion::setReduced(true);
    EXPECT_EQ(canvas->property("t").toDouble(), 0);
    EXPECT_TRUE(figure->property("finished").toBool());
    Motion::setReduced(false);
}

TEST(AlertDialog, IsCancelledByKeyboardUnlessItsButtonIsChosen) {
    Stage stage;
    auto* scene = stage.put(R"(Item {
        id: scene
        width: 800; height: 600
        property string answer
        property bool isAsking: false
        property int pressed: 0
        property alias behind: behind
        Pressable { id: behind; width: 200; height: 40; text: 'behind'; onClicked: ++scene.pressed }
        AlertDialog {
            isWanted: scene.isAsking
            title: 'Move to Trash?'; confirmLabel: 'Move'; cancelLabel: 'Cancel'
            onConfirmed: { scene.answer = 'yes'; scene.isAsking = false }
            onCancelled: { scene.answer = 'no'; scene.isAsking = false }
        }
    })");
    ASSERT_TRUE(scene);
    auto& window = stage.window();
    auto* behind = scene->property("behind").value<QQuickItem*>();
    behind->forceActiveFocus(Qt::TabFocusReason);
    const auto answerTo = [&](const std::vector<Qt::Key>& keys) {
        scene->setProperty("answer", QString());
        scene->setProperty("isAsking", true);
        Stage::turn();
        for (const auto key : keys) press(window, key);
        return scene->property("answer").toString();
    };
    EXPECT_EQ(answerTo({Qt::Key_Return}), "no");
    EXPECT_EQ(answerTo({Qt::Key_Escape}), "no");
    EXPECT_EQ(answerTo({Qt::Key_Tab, Qt::Key_Return}), "") << "it has only just come";
    QTest::qWait(static_cast<int>(settlingTime.count()) + 20);
    press(window, Qt::Key_Return);
    EXPECT_EQ(scene->property("answer").toString(), "yes");
    EXPECT_EQ(answerTo({Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Return}), "no")
        << "the keyboard stays inside";
    EXPECT_EQ(scene->property("pressed").toInt(), 0);
    QTest::qWait(200);
    EXPECT_TRUE(behind->hasActiveFocus()) << "and goes back to where it was";

    scene->setProperty("isAsking", true);
    Stage::turn();
    QTest::mouseClick(&window, Qt::LeftButton, {}, QPoint(20, 20));
    EXPECT_EQ(scene->property("pressed").toInt(), 0);
    EXPECT_TRUE(scene->property("isAsking").toBool()) << "a click beside it answers nothing";
}

TEST(CountUpBytes, EasesOutAndFollowsItsTarget) {
    Stage stage;
    auto* figure = stage.make("CountUpBytes { target: 8000; duration: 100 }");
    figure->setProperty("passed", 0.5);
    EXPECT_EQ(figure->property("shown").toString(), "7 KB");
    figure->setProperty("target", 16000);
    EXPECT_EQ(figure->property("shown").toString(), "14 KB");
    figure->setProperty("passed", 1);
    EXPECT_EQ(figure->property("shown").toString(), "16 KB");
}

TEST(FigureText, GivesEveryDigitTheSameWidthWhileItMoves) {
    Stage stage;
    const auto width = [&stage](const char* text) {
        return stage.put(QString("FigureText { moves: true; size: 30; text: '%1' }").arg(text))
            ->implicitWidth();
    };
    EXPECT_DOUBLE_EQ(width("1111"), width("0847"));
    EXPECT_LT(width("111."), width("1111"));
}

}  // namespace
}  // namespace tidewell::test
