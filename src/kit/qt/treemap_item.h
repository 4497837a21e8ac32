#pragma once

#include <QtCore/qobject.h>
#include <QtGui/qcolor.h>
#include <QtGui/qimage.h>
#include <QtQuick/qquickitem.h>

#include <memory>
#include <vector>

namespace tidewell {

/// A cell as it is drawn. Lengths are in points of the item.
struct TreemapTile {
    QRectF area;
    QString name;
    QString size;
    QString glyph;  ///< in the symbols' font; drawn where there is room
    QColor fill;
    QColor ink;
    bool isOpen = false;  ///< other tiles lie in it, below its name
};

/// The tiles of a picture, parents first, as a value of QML.
class TreemapTiles {
    Q_GADGET
    QML_VALUE_TYPE(treemapTiles)

 public:
    TreemapTiles() = default;
    explicit TreemapTiles(std::vector<TreemapTile> tiles)
        : tiles_(std::make_shared<const std::vector<TreemapTile>>(std::move(tiles))) {}

    const std::shared_ptr<const std::vector<TreemapTile>>& shared() const { return tiles_; }
    bool operator==(const TreemapTiles&) const = default;

 private:
    std::shared_ptr<const std::vector<TreemapTile>> tiles_;
};

/// Draws a treemap. The picture is painted beside the main thread and then only shown, so that
/// thousands of cells cost no turn and nothing at all while nothing changes.
class TreemapItem : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(tidewell::TreemapTiles tiles READ tiles WRITE setTiles NOTIFY tilesChanged)
    /// How far the way from one picture to the next is gone, from 0 to 1.
    Q_PROPERTY(double passage READ passage WRITE setPassage NOTIFY passageChanged)

 public:
    explicit TreemapItem(QQuickItem* parent = nullptr);

    TreemapTiles tiles() const { return tiles_; }
    void setTiles(const TreemapTiles& tiles);
    double passage() const { return passage_; }
    void setPassage(double passage);

    /// The next picture is what lies in this area of the present one.
    Q_INVOKABLE void goInto(const QRectF& area) { next_ = {area, true}; }
    /// The present picture is what lies in this area of the next one.
    Q_INVOKABLE void goOutOf(const QRectF& area) { next_ = {area, false}; }

 signals:
    void tilesChanged();
    void passageChanged();
    /// The next picture is there; `isPassage` if it comes from an area of the one before.
    void painted(bool isPassage);

 protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;

 private:
    /// From one picture to the next.
    struct Way {
        QRectF area;
        bool isInwards = true;
    };

    void paint();
    void take(const QImage& picture, int order);

    TreemapTiles tiles_;
    QImage picture_;
    QImage before_;
    Way way_;
    Way next_;
    double passage_ = 1;
    int order_ = 0;  ///< of the picture that is wanted
    bool isNew_ = false;
};

}  // namespace tidewell
