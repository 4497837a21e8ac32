#include "kit/qt/motion.h"

#include "kit/qt/window_drawing.h"

namespace tidewell {

namespace {

/// The user's wish, which every Motion follows.
class MotionWish : public QObject {
    Q_OBJECT

 public:
    bool isReduced = false;

 signals:
    void changed();
};

Q_GLOBAL_STATIC(MotionWish, wish)

}  // namespace

Motion::Motion(QObject* holder) : QObject(holder) {
    connect(wish, &MotionWish::changed, this, &Motion::changed);
    auto* item = qobject_cast<QQuickItem*>(holder);
    if (!item) return;
    connect(item, &QQuickItem::windowChanged, this, &Motion::follow);
    follow(item->window());
}

void Motion::setReduced(bool isReduced) {
    if (wish->isReduced == isReduced) return;
    wish->isReduced = isReduced;
    emit wish->changed();
}

bool Motion::isReduced() {
    return wish->isReduced;
}

bool Motion::isAllowed() const {
    return !wish->isReduced && window_ && window_->isSeenAndActive() &&
           window_->drawing() == Drawing::byGraphicsCard;
}

bool Motion::hasPassages() const {
    return !wish->isReduced && !isDrawnByProcessor();
}

bool Motion::isDrawnByProcessor() const {
    return window_ && window_->drawing() == Drawing::byProcessor;
}

void Motion::follow(QQuickWindow* window) {
    disconnect(following_);
    window_ = window ? WindowDrawing::of(window) : nullptr;
    if (window_) following_ = connect(window_, &WindowDrawing::changed, this, &Motion::changed);
    emit changed();
}

}  // namespace tidewell

#include "motion.moc"
