#include <QtCore/qcoreapplication.h>
#include <QtCore/qelapsedtimer.h>
#include <QtCore/qfile.h>

#include "kit/qt/motion.h"
#include "shell/screens/welcome_content.h"
#include "window_test.h"

namespace tidewell::test {
namespace {

class WelcomeTest : public WindowTest {
 protected:
    /// A folder for a film that is not the program's own.
    void layOutFilm(const std::string& text) {
        machine.text("/Films/onboarding.mov", text);
        filmFolder = QString::fromStdString(machine.host().systemPath("/Films"));
    }
    /// Of the control that has the keyboard, as it is seen.
    double opacity() const {
        double product = 1;
        for (auto* item = window->window().activeFocusItem(); item; item = item->parentItem())
            product *= item->opacity();
        return product;
    }
    bool isAtHome() const {
        return !view->playingIntro() && !shows("Get Started") && focused() == "Scan My Mac" &&
               opacity() == 1.0;
    }
    bool isAtHomeAtOnce() {
        UserDefaults(machine.host().configurationDirectory).setBoolean("hasOnboarded", false);
        startForTheFirstTime();
        QElapsedTimer clock;
        clock.start();
        key(Qt::Key_Return);
        return comesTo([&] { return isAtHome(); }) && clock.elapsed() < 2500;
    }
    bool isOnboardedOnDisk() const {
        return UserDefaults(machine.host().configurationDirectory).boolean("hasOnboarded");
    }
};

TEST_F(WelcomeTest, TheFirstRunScreenHasTheWindowUntilItsButtonIsPressed) {
    filmFolder = QString();
    startForTheFirstTime();
    EXPECT_EQ(focused(), "Get Started");
    key(Qt::Key_Tab);
    key(Qt::Key_Tab, Qt::ShiftModifier);
    key(Qt::Key_Escape);
    key(Qt::Key_2, Qt::ControlModifier);
    click("Apps", QAccessible::Button);
    EXPECT_EQ(focused(), "Get Started");
    EXPECT_EQ(view->mode(), Mode::home) << "what lies below does not react";
    EXPECT_FALSE(isOnboardedOnDisk());

    key(Qt::Key_Return);
    EXPECT_TRUE(isOnboardedOnDisk());
    ASSERT_TRUE(comesTo([&] { return isAtHome(); })) << "there is no film";
    click("Apps", QAccessible::Button);
    EXPECT_EQ(view->mode(), Mode::apps);
}

TEST_F(WelcomeTest, TheFilmPlaysAndGivesWayToHome) {
    startForTheFirstTime();
    QElapsedTimer clock;
    clock.start();
    click("Get Started");
    ASSERT_TRUE(comesTo([&] { return view->playingIntro() && !shows("Get Started"); }));
    EXPECT_EQ(view->introHomeOpacity(), 0.0);
    key(Qt::Key_Return);
    EXPECT_EQ(view->smartScan->phase(), SmartScanController::Phase::idle)
        << "what lies below does not react";
    ASSERT_TRUE(comesTo([&] { return view->introHomeOpacity() == 1.0; }));
    EXPECT_GT(clock.elapsed(), 2000) << "the film was not played";
    EXPECT_LT(clock.elapsed(), 11000) << "the film was given up";
    EXPECT_TRUE(view->playingIntro()) << "it still fades";
    EXPECT_TRUE(comesTo([&] { return isAtHome(); }));
}

TEST_F(WelcomeTest, AFilmThatBreaksOffGivesWayWhereItDoes) {
    QFile film(QString(ownFilmFolder) + "/onboarding.mp4");
    ASSERT_TRUE(film.open(QIODevice::ReadOnly));
    layOutFilm(film.read(film.size() / 4).toStdString());
    startForTheFirstTime();
    key(Qt::Key_Return);
    EXPECT_TRUE(comesTo([&] { return isAtHome(); }));
}

TEST_F(WelcomeTest, WithoutAFilmAndWhatPlaysItHomeIsThereAtOnce) {
    layOutFilm("no film");
    EXPECT_TRUE(isAtHomeAtOnce()) << "a broken film";
    filmFolder = ownFilmFolder;
    Motion::setReduced(true);
    EXPECT_TRUE(isAtHomeAtOnce()) << "the user wants less motion";
    Motion::setReduced(false);
    const auto plugins = QCoreApplication::libraryPaths();
    QCoreApplication::setLibraryPaths({});
    EXPECT_TRUE(isAtHomeAtOnce()) << "there is no player";
    QCoreApplication::setLibraryPaths(plugins);
}

TEST_F(WelcomeTest, TheAboutSheetIsLeftByEscapeAndByItsButtonAndTheKeyboardReturns) {
    start();
    auto* row = find("About Tidewell", QAccessible::Button);
    ASSERT_NE(row, nullptr);
    qobject_cast<QQuickItem*>(row->object())->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Return);
    ASSERT_TRUE(comesTo([&] { return shows("Made with care for your Mac."); }));
    EXPECT_TRUE(shows(QString::fromStdString(versionLine(machine.host().ownBundle))));
    EXPECT_EQ(focused(), "Close");
    key(Qt::Key_Escape);
    EXPECT_FALSE(view->showAbout());
    ASSERT_TRUE(comesTo([&] { return !shows("Made with care for your Mac."); }));
    EXPECT_EQ(focused(), "About Tidewell");

    application->bridge.showAbout();
    ASSERT_TRUE(comesTo([&] { return focused() == "Close"; }));
    click("Close");
    EXPECT_FALSE(view->showAbout());
    EXPECT_TRUE(comesTo([&] { return focused() == "About Tidewell"; }));
}

TEST_F(WelcomeTest, TheAboutSheetsLinksOpenTheirPages) {
    start();
    application->bridge.showAbout();
    const auto links = aboutLinks(machine.host().ownBundle.website);
    ASSERT_EQ(links.size(), 4);
    std::vector<std::string> targets;
    for (const auto& link : links) {
        click(QString::fromUtf8(link.label.data(), static_cast<qsizetype>(link.label.size())));
        targets.push_back(link.target);
    }
    EXPECT_EQ(openedUrls, targets);
    EXPECT_EQ(targets.back(), "https://tidewell.example/privacy");
    EXPECT_TRUE(aboutLinks("").empty()) << "they lead to what exists, or are not there";
    EXPECT_TRUE(view->showAbout());
}

}  // namespace
}  // namespace tidewell::test
