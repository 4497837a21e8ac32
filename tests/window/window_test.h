#pragma once

#include <gtest/gtest.h>

#include <QtGui/qaccessible.h>
#include <QtQuick/qquickitem.h>
#include <QtTest/qtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "kit/settling.h"
#include "platform/user_defaults.h"
#include "shell/qt/main_window.h"
#include "shell/qt/qt_main_loop.h"
#include "support/accessible_tree.h"
#include "support/sample_machine.h"

namespace tidewell::test {

/// The real window over a sample machine, with real threads, seen and used as its user does: by
/// pointer, by keyboard, and by assistive tools, which find a thing by its name.
class WindowTest : public testing::Test {
 protected:
    explicit WindowTest(System system = System::macOS) : machine(system) {}

    /// Starts the program for a user who knows it; the machine stands by then.
    void start() {
        UserDefaults(machine.host().configurationDirectory).setBoolean("hasOnboarded", true);
        startForTheFirstTime();
    }
    /// The same for one who does not; may be called again for a further start.
    void startForTheFirstTime() {
        window.reset();
        view.reset();
        application = std::make_unique<Application>(
            machine.host(),
            Workspace{.openUrl = [this](const std::string& url) { openedUrls.push_back(url); },
                      .reveal = [this](const std::string& path) { revealedPaths.push_back(path); }},
            [] {});
        view = std::make_shared<ContentView>(*application);
        window = std::make_unique<MainWindow>(*application, view, filmFolder);
        window->open();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window->window()));
    }

    /// Lets the program go on until it has come to something.
    [[nodiscard]] static bool comesTo(const std::function<bool()>& condition) {
        return QTest::qWaitFor(condition, 20'000);
    }

    /// Lets all that has just appeared take its place.
    [[nodiscard]] bool comesToRest() const {
        bool isDrawn = false;
        QObject waiting;
        QObject::connect(&window->window(), &QQuickWindow::frameSwapped, &waiting,
                         [&isDrawn] { isDrawn = true; });
        window->window().update();
        return comesTo([&isDrawn] { return isDrawn; });
    }

    /// What assistive tools are told of a thing that is seen; null if there is none of that name.
    QAccessibleInterface* find(const QString& name,
                               std::optional<QAccessible::Role> role = std::nullopt) const {
        return findIf([&](QAccessibleInterface& place) {
            return place.text(QAccessible::Name) == name && (!role || place.role() == *role);
        });
    }
    /// The thing of that name whose description has these words.
    QAccessibleInterface* findDescribed(const QString& name, const QString& words) const {
        return findIf([&](QAccessibleInterface& place) {
            return place.text(QAccessible::Name) == name &&
                   place.text(QAccessible::Description).contains(words);
        });
    }
    /// All that assistive tools are told, for whoever looks into a failure.
    std::string told() const {
        return toldBelow(QAccessible::queryAccessibleInterface(&window->window()), "\n");
    }
    bool shows(const QString& name) const { return find(name) != nullptr; }

    /// Lets the time go by in which a list or a question that has just changed takes no press that
    /// cannot be taken back.
    static void settle() { QTest::qWait(static_cast<int>(settlingTime.count()) + 20); }

    void press(const QString& name) const { press(find(name), name); }
    void press(QAccessibleInterface* control, const QString& name) const {
        ASSERT_NE(control, nullptr) << name.toStdString() << " is not among" << told();
        control->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }
    void click(const QString& name, std::optional<QAccessible::Role> role = std::nullopt) const {
        QAccessibleInterface* control = nullptr;
        ASSERT_TRUE(comesTo([&] { return (control = find(name, role)) != nullptr; }))
            << name.toStdString() << " is not among" << told();
        ASSERT_TRUE(comesToRest());
        clickAt(placeOf(control));
    }
    /// Where it is on the window; (0, 0) if it is not there.
    QPoint placeOf(const QAccessibleInterface* control) const {
        return control ? window->window().mapFromGlobal(control->rect().center()) : QPoint();
    }
    void clickAt(const QPoint& place) const {
        QTest::mouseClick(&window->window(), Qt::LeftButton, {}, place);
    }
    void key(int key, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::keyClick(&window->window(), static_cast<Qt::Key>(key), modifiers);
    }
    /// What the keyboard is at.
    QString focused() const {
        auto* item = window->window().activeFocusItem();
        auto* control = item ? QAccessible::queryAccessibleInterface(item) : nullptr;
        return control ? control->text(QAccessible::Name) : QString();
    }
    /// Whether it is seen where the keyboard is at.
    bool showsFocus() const {
        const auto* item = window->window().activeFocusItem();
        return item && item->property("visualFocus").toBool();
    }
    bool isEnabled(const QString& name) const { return isEnabled(find(name)); }
    static bool isEnabled(QAccessibleInterface* control) {
        const auto* item = control ? qobject_cast<QQuickItem*>(control->object()) : nullptr;
        return item && item->isEnabled();
    }
    bool isChecked(const QString& name, QAccessible::Role role = QAccessible::CheckBox) const {
        const auto* control = find(name, role);
        return control && control->state().checked;
    }

    SampleMachine machine;
    QtMainLoop loop;
    std::vector<std::string> openedUrls;
    std::vector<std::string> revealedPaths;
    QString filmFolder = ownFilmFolder;
    std::unique_ptr<Application> application;
    std::shared_ptr<ContentView> view;
    std::unique_ptr<MainWindow> window;

 private:
    QAccessibleInterface* findIf(const AccessibleCriterion& isWanted) const {
        return findAccessible(window->window(), isWanted);
    }

    static std::string toldBelow(QAccessibleInterface* place, const std::string& lineBreak) {
        if (!place) return lineBreak + "nothing";
        auto text = lineBreak + std::to_string(place->role()) + ' ' +
                    place->text(QAccessible::Name).toStdString() +
                    (place->state().invisible ? " (unseen)" : "");
        for (int child = 0; child < place->childCount(); ++child)
            text += toldBelow(place->child(child), lineBreak + "  ");
        return text;
    }
};

}  // namespace tidewell::test
