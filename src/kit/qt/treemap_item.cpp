#include "kit/qt/treemap_item.h"

#include <QtCore/qpointer.h>
#include <QtCore/qthreadpool.h>
#include <QtGui/qfontmetrics.h>
#include <QtGui/qpainter.h>
#include <QtQuick/qquickwindow.h>
#include <QtQuick/qsgimagenode.h>
#include <QtQuick/qsgnode.h>

#include <algorithm>
#include <cmath>

#include "kit/qt/kit.h"

namespace tidewell {

namespace {

constexpr double corner = 4;
constexpr double gap = 0.75;                ///< on each side of a cell
constexpr double margin = 7;                ///< between a cell's edge and its words
constexpr double line = 16;                 ///< from one line of words to the next
constexpr double narrowestCut = 56;         ///< that is left of a name
constexpr double widthOfNameAndSize = 100;  ///< in a strip, beside the size

QFont face(int size, int weight) {
    QFont font(Kit::fontFamily(false));
    font.setPixelSize(size);
    font.setWeight(static_cast<QFont::Weight>(Kit::fontWeight(weight, false)));
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    return font;
}

/// Paints one picture; any thread.
class TreemapPainter {
 public:
    TreemapPainter(QSizeF size, double scale)
        : scale_(scale), picture_((size * scale).toSize(), QImage::Format_ARGB32_Premultiplied) {
        picture_.setDevicePixelRatio(scale);
        picture_.fill(Qt::transparent);
        symbols_.setPixelSize(15);
    }

    QImage paint(const std::vector<TreemapTile>& tiles) && {
        QPainter painter(&picture_);
        painter.setRenderHint(QPainter::Antialiasing);
        for (const auto& tile : tiles) paint(tile, painter);
        painter.end();
        return std::move(picture_);
    }

 private:
    void paint(const TreemapTile& tile, QPainter& painter) const {
        const auto area = sharp(tile.area);
        painter.setPen(Qt::NoPen);
        painter.setBrush(tile.fill);
        const double radius = std::min({corner, area.width() / 4, area.height() / 4});
        painter.drawRoundedRect(area, radius, radius);
        painter.setPen(tile.ink);
        if (tile.isOpen) {
            writeStrip(tile, area, painter);
        } else if (area.height() >= line + 4) {
            const bool hasName = writeName(tile.name, area, line, painter);
            if (hasName && area.height() >= 2 * line + 6) writeSize(tile.size, area, painter);
            if (area.width() >= 84 && area.height() >= 64) drawSymbol(tile, area, painter);
        }
    }

    void writeStrip(const TreemapTile& tile, const QRectF& area, QPainter& painter) const {
        const double reserved = QFontMetricsF(sizeFont_).horizontalAdvance(tile.size) + margin;
        const bool hasSize = area.width() >= reserved + widthOfNameAndSize;
        writeName(tile.name, area.adjusted(0, 0, hasSize ? -reserved : 0, 0), 15, painter);
        if (!hasSize) return;
        painter.setFont(sizeFont_);
        painter.setOpacity(0.6);
        painter.drawText(QPointF(area.right() - reserved, area.top() + 15), tile.size);
        painter.setOpacity(1);
    }

    /// Cut in its middle, but not down to a few letters: false if there is no room for more.
    bool writeName(const QString& text, const QRectF& area, double baseline,
                   QPainter& painter) const {
        const QFontMetricsF metrics(nameFont_);
        const double room = area.width() - 2 * margin;
        if (room < std::min(metrics.horizontalAdvance(text), narrowestCut)) return false;
        painter.setFont(nameFont_);
        painter.drawText(QPointF(area.left() + margin, area.top() + baseline),
                         metrics.elidedText(text, Qt::ElideMiddle, room));
        return true;
    }

    void writeSize(const QString& text, const QRectF& area, QPainter& painter) const {
        if (area.width() - 2 * margin < QFontMetricsF(sizeFont_).horizontalAdvance(text)) return;
        painter.setFont(sizeFont_);
        painter.drawText(QPointF(area.left() + margin, area.top() + 2 * line), text);
    }

    /// Cells begin and end at whole pixels.
    QRectF sharp(const QRectF& area) const {
        const double inset = std::min({gap, area.width() / 6, area.height() / 6});
        const auto snap = [this](double length) { return std::round(length * scale_) / scale_; };
        return {QPointF(snap(area.left() + inset), snap(area.top() + inset)),
                QPointF(snap(area.right() - inset), snap(area.bottom() - inset))};
    }

    void drawSymbol(const TreemapTile& tile, const QRectF& area, QPainter& painter) const {
        painter.setFont(symbols_);
        painter.drawText(area.adjusted(0, 0, -margin, -5), Qt::AlignRight | Qt::AlignBottom,
                         tile.glyph);
    }

    const double scale_;
    QImage picture_;
    const QFont nameFont_ = face(12, 600);
    const QFont sizeFont_ = face(11, 400);
    QFont symbols_ = QFont(Kit::symbolFamilyName());
};

QRectF between(const QRectF& from, const QRectF& to, double share) {
    const auto mix = [share](double one, double other) { return one + (other - one) * share; };
    return {mix(from.x(), to.x()), mix(from.y(), to.y()), mix(from.width(), to.width()),
            mix(from.height(), to.height())};
}

/// Where a whole lies if one of its parts lies where the whole was.
QRectF grown(const QRectF& whole, const QRectF& part) {
    const double across = whole.width() / part.width();
    const double down = whole.height() / part.height();
    return {-part.x() * across, -part.y() * down, whole.width() * across, whole.height() * down};
}

/// Two pictures, one over the other. A transform node and two that are there from the beginning,
/// for the renderer without OpenGL knows where a new node stands only below such ones.
class PictureNodes : public QSGTransformNode {
 public:
    PictureNodes() {
        for (auto& part : parts_) appendChildNode(part.opacity = new QSGOpacityNode);
    }

    void show(int place, const QImage& picture, QQuickWindow& window) {
        auto& part = parts_[place];
        if (part.image) {
            part.opacity->removeChildNode(part.image);
            delete part.image;
            part.image = nullptr;
        }
        if (picture.isNull()) return;
        part.image = window.createImageNode();
        part.image->setTexture(window.createTextureFromImage(picture));
        part.image->setOwnsTexture(true);
        part.image->setFiltering(QSGTexture::Linear);
        part.opacity->appendChildNode(part.image);
    }
    void place(int place, const QRectF& area, double opacity) {
        const auto& part = parts_[place];
        if (!part.image) return;
        part.opacity->setOpacity(opacity);
        part.image->setRect(area);
    }

 private:
    struct Part {
        QSGOpacityNode* opacity = nullptr;
        QSGImageNode* image = nullptr;
    };
    Part parts_[2];
};

}  // namespace

TreemapItem::TreemapItem(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemHasContents);
    setClip(true);
}

void TreemapItem::setTiles(const TreemapTiles& tiles) {
    if (tiles == tiles_) return;
    tiles_ = tiles;
    emit tilesChanged();
    paint();
}

void TreemapItem::setPassage(double passage) {
    passage_ = passage;
    emit passageChanged();
    update();
}

/// Of pictures that were asked for meanwhile only the last is shown.
void TreemapItem::paint() {
    if (!tiles_.shared() || !window() || width() < 1 || height() < 1) return;
    const auto order = ++order_;
    QThreadPool::globalInstance()->start([item = QPointer(this), order, tiles = tiles_.shared(),
                                          size = size(),
                                          scale = window()->effectiveDevicePixelRatio()] {
        const auto picture = TreemapPainter(size, scale).paint(*tiles);
        QMetaObject::invokeMethod(
            qApp,
            [item, picture, order] {
                if (item) item->take(picture, order);
            },
            Qt::QueuedConnection);
    });
}

void TreemapItem::take(const QImage& picture, int order) {
    if (order != order_) return;
    const bool isPassage = !next_.area.isEmpty() && !picture_.isNull();
    before_ = isPassage ? picture_ : QImage();
    picture_ = picture;
    way_ = std::exchange(next_, {});
    passage_ = isPassage ? 0 : 1;
    isNew_ = true;
    update();
    emit painted(isPassage);
}

QSGNode* TreemapItem::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
    auto* nodes = static_cast<PictureNodes*>(old);
    if (!nodes) {
        nodes = new PictureNodes;
        isNew_ = true;
    }
    if (passage_ >= 1 && !before_.isNull()) {
        before_ = {};
        isNew_ = true;
    }
    if (std::exchange(isNew_, false)) {
        nodes->show(0, before_, *window());
        nodes->show(1, picture_, *window());
    }
    const QRectF whole(0, 0, width(), height());
    if (before_.isNull()) {
        nodes->place(1, whole, 1);
        return nodes;
    }
    const auto large = grown(whole, way_.area);
    nodes->place(0, between(whole, way_.isInwards ? large : way_.area, passage_), 1 - passage_);
    nodes->place(1, between(way_.isInwards ? way_.area : large, whole, passage_), passage_);
    return nodes;
}

void TreemapItem::itemChange(ItemChange change, const ItemChangeData& data) {
    QQuickItem::itemChange(change, data);
    if (change == ItemSceneChange || change == ItemDevicePixelRatioHasChanged) paint();
}

void TreemapItem::geometryChange(const QRectF& now, const QRectF& before) {
    QQuickItem::geometryChange(now, before);
    update();
}

}  // namespace tidewell
