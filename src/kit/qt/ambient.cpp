#include "kit/qt/ambient.h"

namespace tidewell {

namespace {

/// Tells every Ambient that one of them was set or reset.
class AmbientNews : public QObject {
    Q_OBJECT

 signals:
    void changedAt(QQuickItem* holder);
};

Q_GLOBAL_STATIC(AmbientNews, news)

}  // namespace

Ambient::Ambient(QObject* holder) : QObject(holder), holder_(qobject_cast<QQuickItem*>(holder)) {
    if (!holder_) return;
    connect(holder_, &QQuickItem::parentChanged, this, &Ambient::resolve);
    connect(news, &AmbientNews::changedAt, this, [this](QQuickItem* changed) {
        if (changed == holder_ || changed->isAncestorOf(holder_)) resolve();
    });
    resolve();
}

void Ambient::setPalette(const PaletteValue& palette) {
    set(palette);
}

void Ambient::resetPalette() {
    set({});
}

void Ambient::set(const std::optional<PaletteValue>& palette) {
    if (own_ == palette) return;
    own_ = palette;
    if (holder_) emit news->changedAt(holder_);
}

void Ambient::resolve() {
    std::optional<PaletteValue> found;
    auto* top = holder_.data();
    for (auto* item = holder_.data(); item && !found; item = item->parentItem()) {
        const auto* ambient =
            qobject_cast<Ambient*>(qmlAttachedPropertiesObject<Ambient>(item, false));
        if (ambient) found = ambient->own_;
        top = item;
    }
    if (top != top_) {
        if (top_ && top_ != holder_) top_->disconnect(this);
        top_ = top;
        if (top_ != holder_) connect(top_, &QQuickItem::parentChanged, this, &Ambient::resolve);
    }
    const auto palette = found.value_or(PaletteValue());
    if (palette == palette_) return;
    palette_ = palette;
    emit paletteChanged();
}

}  // namespace tidewell

#include "ambient.moc"
