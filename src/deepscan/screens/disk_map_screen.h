#pragma once

#include <QtCore/qrect.h>
#include <QtCore/qstring.h>
#include <QtGui/qcolor.h>

#include <memory>
#include <vector>

#include "deepscan/screens/disk_map_content.h"
#include "kit/qt/list_model.h"
#include "kit/qt/palette_value.h"
#include "kit/qt/screen.h"
#include "kit/qt/text.h"
#include "kit/qt/treemap_item.h"
#include "kit/settling.h"
#include "kit/treemap.h"
#include "platform/workspace.h"

namespace tidewell {

/// A cell that assistive tools are told of.
struct MapBranch {
    std::uint32_t node = 0;
    std::string name;
    std::string words;
    QRectF area;

    bool operator==(const MapBranch&) const = default;
};

/// Behind the map: which folder it shows, and what is in hand.
class DiskMapScreen final : public Screen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(bool isMapping READ isMapping NOTIFY changed)
    Q_PROPERTY(bool isShown READ isShown NOTIFY changed)
    Q_PROPERTY(bool isNothing READ isNothing NOTIFY changed)
    Q_PROPERTY(QString metLine READ metLine NOTIFY changed)
    Q_PROPERTY(QString summary READ summary NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel* crumbs READ crumbs CONSTANT)
    Q_PROPERTY(QAbstractItemModel* legend READ legend CONSTANT)
    Q_PROPERTY(QAbstractItemModel* branches READ branches CONSTANT)
    Q_PROPERTY(tidewell::TreemapTiles tiles READ tiles NOTIFY tilesChanged)
    /// Of what is in hand; empty for the folder that is shown.
    Q_PROPERTY(QRectF handArea READ handArea NOTIFY changed)
    Q_PROPERTY(QRectF pointedArea READ pointedArea NOTIFY pointed)
    Q_PROPERTY(QString pointedName READ pointedName NOTIFY pointed)
    Q_PROPERTY(QString pointedWords READ pointedWords NOTIFY pointed)
    // Of what is in hand.
    Q_PROPERTY(QString symbol READ symbol NOTIFY changed)
    Q_PROPERTY(QString name READ name NOTIFY changed)
    Q_PROPERTY(QString figure READ figure NOTIFY changed)
    Q_PROPERTY(QString verdict READ verdict NOTIFY changed)
    Q_PROPERTY(QColor verdictColor READ verdictColor NOTIFY changed)
    Q_PROPERTY(QString sentence READ sentence NOTIFY changed)
    Q_PROPERTY(QString revealHelp READ revealHelp NOTIFY changed)
    Q_PROPERTY(QString trashHelp READ trashHelp NOTIFY changed)
    Q_PROPERTY(QString showLabel READ showLabel NOTIFY changed)

 public:
    DiskMapScreen(std::shared_ptr<DiskMapViewModel> model, Workspace workspace, QObject* parent);

    bool isMapping() const { return phase() == DiskMapViewModel::Phase::mapping; }
    bool isShown() const { return phase() == DiskMapViewModel::Phase::map && !isNothing(); }
    bool isNothing() const;
    /// Also while it is made anew.
    bool hasPicture() const { return !map().isEmpty(); }
    QString metLine() const;
    QString summary() const;
    QAbstractItemModel* crumbs() { return &crumbs_; }
    QAbstractItemModel* legend() { return &legend_; }
    QAbstractItemModel* branches() { return &branches_; }
    TreemapTiles tiles() const { return tiles_; }
    QRectF handArea() const { return areaOf(state_.hand); }
    QRectF pointedArea() const { return pointed_ ? areaOf(*pointed_) : QRectF(); }
    QString pointedName() const { return toText(pointedThing_.name); }
    QString pointedWords() const;
    QString symbol() const { return toText(thing_.symbol); }
    QString name() const { return toText(thing_.name); }
    QString figure() const { return toText(thing_.figure); }
    QString verdict() const { return toText(thing_.look.title); }
    QColor verdictColor() const { return toQColor(thing_.look.color); }
    QString sentence() const { return toText(thing_.sentence); }
    QString revealHelp() const { return toText(thing_.revealHelp); }
    QString trashHelp() const { return toText(thing_.trashHelp); }
    QString showLabel() const { return toText(thing_.showLabel); }

    /// To be called when the map comes into sight: walks, if that was not done yet.
    Q_INVOKABLE void open();
    Q_INVOKABLE void make();
    Q_INVOKABLE void stop();
    /// How large the map is drawn.
    Q_INVOKABLE void resize(double width, double height);

    Q_INVOKABLE void point(double x, double y);
    Q_INVOKABLE void pointNowhere();
    /// Goes into the folder there, or takes what is there in hand.
    Q_INVOKABLE void press(double x, double y);
    /// Takes the next cell in a direction in hand.
    Q_INVOKABLE void step(int across, int down);
    /// Goes into what is in hand; into the folder around it if it is none.
    Q_INVOKABLE void enter();
    /// False if it is shown as a whole.
    Q_INVOKABLE bool leave();
    Q_INVOKABLE void goToCrumb(int row);
    Q_INVOKABLE void goToBranch(int row);
    Q_INVOKABLE void chooseVerdict(int row);

    Q_INVOKABLE void reveal();
    /// Shows the row that takes what is in hand.
    Q_INVOKABLE void showRow();

    /// What is to go to the Trash: none as long as it has not been in hand for a moment.
    std::optional<BigItem> itemAtRest() const;

 signals:
    void tilesChanged();
    void pointed();
    /// The next picture is what lies in this area of the present one; outwards the other way round.
    void goesIn(const QRectF& area);
    void goesOut(const QRectF& area);
    void wantsTool(RowTool tool);

 private:
    void update() override;
    void layOut();
    void open(std::uint32_t node);
    void goTo(std::uint32_t folder);
    void takeInHand(std::uint32_t node);
    DiskMapViewModel::Phase phase() const { return model_->phase(); }
    const DiskMap& map() const { return model_->map(); }
    std::optional<std::uint32_t> nodeAt(double x, double y) const;
    const TreemapCell* cellOf(std::uint32_t node) const;
    QRectF areaOf(std::uint32_t node) const;
    bool isIn(std::uint32_t node, std::uint32_t folder) const;
    TreemapTile tileOf(const TreemapCell& cell) const;

    const std::shared_ptr<DiskMapViewModel> model_;
    const Workspace workspace_;
    DiskMapScreenState state_;
    std::optional<std::uint32_t> pointed_;
    MapThing thing_;
    MapThing pointedThing_;
    Settling settling_;
    TreemapFrame frame_;
    std::vector<TreemapNode> sizes_;
    std::vector<TreemapCell> cells_;
    TreemapTiles tiles_;
    ListModel<MapCrumb> crumbs_;
    ListModel<MapLegendRow> legend_;
    ListModel<MapBranch> branches_;
};

}  // namespace tidewell
