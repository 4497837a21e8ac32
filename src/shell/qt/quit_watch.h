#pragma once

#include <QtCore/qobject.h>

#include "shell/quitting.h"

namespace tidewell {

/// Hears whoever wants the program to end: its own Quit, the desktop at the end of a session, and
/// the system by a signal. A session's end waits for the item in hand. Main thread only; one at a
/// time, while the toolkit's application is there.
class QuitWatch final : public QObject {
    Q_OBJECT

 public:
    /// `quitting` outlives it.
    explicit QuitWatch(Quitting& quitting);

    bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
    void awaitItemInHand();

    Quitting& quitting_;
};

}  // namespace tidewell
