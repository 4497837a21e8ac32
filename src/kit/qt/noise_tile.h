#pragma once

#include <QtCore/qobject.h>
#include <QtCore/qurl.h>
#include <QtQml/qqml.h>

namespace tidewell {

/// The picture of the grain that lies over the window: made of 16384 random values when it is first
/// asked for.
class NoiseTile : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QUrl source READ source CONSTANT)

 public:
    static NoiseTile* create(QQmlEngine* engine, QJSEngine*);

    static QUrl source();

 private:
    NoiseTile() = default;
};

}  // namespace tidewell
