#pragma once

#include <gtest/gtest.h>

#include <QtCore/qcoreapplication.h>
#include <QtQml/qqmlcomponent.h>
#include <QtQml/qqmlengine.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickwindow.h>

#include <memory>

#include "kit/qt/module.h"

namespace tidewell::test {

/// A window to put components into. Whatever Qt complains of while it stands fails the test.
class Stage {
 public:
    Stage() {
        previous_ = qInstallMessageHandler(
            [](QtMsgType type, const QMessageLogContext&, const QString& text) {
                if (type != QtDebugMsg && type != QtInfoMsg) ADD_FAILURE() << text.toStdString();
            });
        importTidewellModule(engine_);
        window_.resize(800, 600);
        window_.show();
        window_.requestActivate();
        turn();
    }
    ~Stage() { qInstallMessageHandler(previous_); }
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    QQuickWindow& window() { return window_; }

    /// Makes the item that the text describes; it stands on the stage until that is gone.
    QQuickItem* put(const QString& text) {
        auto* item = make(text);
        if (item) item->setParentItem(window_.contentItem());
        turn();
        return item;
    }

    /// The same, in no window yet.
    QQuickItem* make(const QString& text) {
        QQmlComponent component(&engine_);
        component.setData("import QtQuick\nimport Tidewell\n" + text.toUtf8(), QUrl());
        auto* item = qobject_cast<QQuickItem*>(component.create());
        if (item) item->setParent(&window_);
        EXPECT_TRUE(item) << text.toStdString() << component.errorString().toStdString();
        return item;
    }

    static void turn() {
        for (int round = 0; round < 3; ++round) QCoreApplication::processEvents();
    }

 private:
    QtMessageHandler previous_ = nullptr;
    QQmlEngine engine_;
    QQuickWindow window_;
};

}  // namespace tidewell::test
