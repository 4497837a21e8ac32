#pragma once

#include <QtCore/qstring.h>
#include <QtGui/qcolor.h>

#include <memory>

#include "deepscan/screens/deep_scan_content.h"
#include "deepscan/screens/disk_map_screen.h"
#include "kit/qt/list_model.h"
#include "kit/qt/palette_value.h"
#include "kit/qt/screen.h"
#include "kit/qt/text.h"
#include "platform/workspace.h"

namespace tidewell {

/// Behind the Deep Scan tool: the big items by what may be done with them.
class DeepScanScreen final : public Screen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(bool isStart READ isStart NOTIFY changed)
    Q_PROPERTY(bool isScanning READ isScanning NOTIFY changed)
    Q_PROPERTY(bool foundNothing READ foundNothing NOTIFY changed)
    Q_PROPERTY(bool isList READ isList NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY changed)
    Q_PROPERTY(QString placardSymbol READ placardSymbol NOTIFY changed)
    Q_PROPERTY(QString placardTitle READ placardTitle NOTIFY changed)
    Q_PROPERTY(QString placardLine READ placardLine NOTIFY changed)
    Q_PROPERTY(double progress READ progress NOTIFY changed)
    Q_PROPERTY(QString scanLabel READ scanLabel NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel* rail READ rail CONSTANT)
    Q_PROPERTY(QString bucketTitle READ bucketTitle NOTIFY changed)
    Q_PROPERTY(QString bucketSubtitle READ bucketSubtitle NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel* cards READ cards CONSTANT)
    Q_PROPERTY(QString leftOutNote READ leftOutNote NOTIFY changed)
    Q_PROPERTY(bool hasBanner READ hasBanner NOTIFY changed)
    Q_PROPERTY(QString bannerSymbol READ bannerSymbol NOTIFY changed)
    Q_PROPERTY(QColor bannerColor READ bannerColor NOTIFY changed)
    Q_PROPERTY(QString bannerText READ bannerText NOTIFY changed)
    Q_PROPERTY(QString undoLabel READ undoLabel NOTIFY changed)
    Q_PROPERTY(bool asksToTrash READ asksToTrash NOTIFY changed)
    Q_PROPERTY(QString questionTitle READ questionTitle NOTIFY changed)
    Q_PROPERTY(QString questionText READ questionText NOTIFY changed)
    Q_PROPERTY(QString confirmLabel READ confirmLabel NOTIFY changed)
    Q_PROPERTY(QString cancelLabel READ cancelLabel NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel* faces READ faces CONSTANT)
    Q_PROPERTY(bool showsMap READ showsMap NOTIFY changed)
    Q_PROPERTY(tidewell::DiskMapScreen* map READ map CONSTANT)

 public:
    DeepScanScreen(std::shared_ptr<DeepScanViewModel> model,
                   std::shared_ptr<DiskMapViewModel> mapModel, const Workspace& workspace,
                   QObject* parent);

    bool isStart() const { return content_.page == DeepScanContent::Page::start; }
    bool isScanning() const { return content_.page == DeepScanContent::Page::scanning; }
    bool foundNothing() const { return content_.page == DeepScanContent::Page::nothingFound; }
    bool isList() const { return content_.page == DeepScanContent::Page::list; }
    QString title() const { return toText(content_.header); }
    QString subtitle() const { return toText(isList() ? content_.summary : content_.headerLine); }
    QString placardSymbol() const { return toText(content_.placard.symbol); }
    QString placardTitle() const { return toText(content_.placard.title); }
    QString placardLine() const { return toText(content_.placard.line); }
    double progress() const { return content_.progress; }
    QString scanLabel() const { return toText(content_.scanLabel); }
    QAbstractItemModel* rail() { return &rail_; }
    QString bucketTitle() const;
    QString bucketSubtitle() const { return toText(content_.bucketSubtitle); }
    QAbstractItemModel* cards() { return &cards_; }
    /// Empty where nothing was left out.
    QString leftOutNote() const { return toText(content_.leftOutNote.value_or("")); }
    bool hasBanner() const { return content_.banner.has_value(); }
    QString bannerSymbol() const { return toText(banner_.symbol); }
    QColor bannerColor() const { return toQColor(banner_.color); }
    QString bannerText() const { return toText(banner_.text); }
    QString undoLabel() const { return toText(banner_.undoLabel); }
    bool asksToTrash() const { return content_.confirmation.has_value(); }
    QString questionTitle() const { return toText(question_.title); }
    QString questionText() const { return toText(question_.message); }
    QString confirmLabel() const { return toText(question_.confirmLabel); }
    QString cancelLabel() const { return toText(question_.cancelLabel); }
    /// The list, and the map.
    QAbstractItemModel* faces() { return &faces_; }
    bool showsMap() const { return state_.face == DeepScanFace::map; }
    DiskMapScreen* map() { return &map_; }

    /// To be called when the screen comes into sight: what it remembers by itself is forgotten. Has
    /// its effect in a later turn.
    Q_INVOKABLE void open();
    Q_INVOKABLE void scan();
    /// For a row of `faces`.
    Q_INVOKABLE void chooseFace(int row);
    /// Ends a walk for the map under way; where there is no map then, the list is shown.
    Q_INVOKABLE void stopMap();
    /// For a row of `rail`.
    Q_INVOKABLE void viewBucket(int row);
    // For a row of `cards`.
    Q_INVOKABLE void reveal(int row);
    Q_INVOKABLE void copyCommand(int row);
    /// Asks first, where the item may be dear to the user.
    Q_INVOKABLE void trash(int row);
    Q_INVOKABLE void putBack(int row);
    /// The same for what is in hand on the map.
    Q_INVOKABLE void trashFromMap();
    /// Puts back what the banner tells of.
    Q_INVOKABLE void undo();
    // The answers to that question.
    Q_INVOKABLE void confirmTrash();
    Q_INVOKABLE void cancelTrash();

 private:
    void update() override;
    void wishToTrash(BigItem item);
    void move(BigItem item);

    const std::shared_ptr<DeepScanViewModel> model_;
    const Workspace workspace_;
    DeepScanScreenState state_;
    DeepScanContent content_;
    // The last ones that there were: they stay legible while they go.
    TrashBanner banner_;
    TrashConfirmation question_;
    ListModel<RiskRow> rail_;
    ListModel<BigItemCard> cards_;
    ListModel<FaceChoice> faces_;
    DiskMapScreen map_;
};

}  // namespace tidewell
