#pragma once

#include <QtCore/qobject.h>
#include <QtQml/qqmlregistration.h>

#include "async/paced_observer.h"

namespace tidewell {

/// What stands behind a screen: hands its content to QML as properties that all notify with
/// changed(), and has its verbs. Main thread only.
class Screen : public QObject {
    Q_OBJECT
    QML_ANONYMOUS

 public:
    explicit Screen(QObject* parent);

 signals:
    void changed();

 protected:
    /// From now on the content is worked out anew after each change of what the signal belongs to.
    void observe(Signal& willChange) { observer_.watch(willChange); }
    /// Works the content out anew now, for what changed by this very screen.
    void refresh();

 private:
    /// Reads the content from the models.
    virtual void update() = 0;

    PacedObserver observer_;
};

}  // namespace tidewell
