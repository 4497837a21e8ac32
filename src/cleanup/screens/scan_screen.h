#pragma once

#include <QtCore/qstring.h>

#include <memory>

#include "cleanup/live_sums.h"
#include "cleanup/screens/scan_content.h"
#include "kit/qt/screen.h"
#include "kit/qt/text.h"
#include "kit/words.h"

namespace tidewell {

/// Behind the Clean tool's first screen: before and during a scan.
class ScanScreen final : public Screen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(bool isScanning READ isScanning NOTIFY changed)
    Q_PROPERTY(double progress READ progress NOTIFY changed)
    Q_PROPERTY(QString percent READ percent NOTIFY changed)
    Q_PROPERTY(QString caption READ caption NOTIFY changed)
    Q_PROPERTY(QString soFar READ soFar NOTIFY changed)
    Q_PROPERTY(QString scanLabel READ scanLabel CONSTANT)

 public:
    ScanScreen(std::shared_ptr<CleanupViewModel> model, std::shared_ptr<LiveSums> sums,
               QObject* parent);

    bool isScanning() const { return content_.isScanning; }
    double progress() const { return model_->scanProgress(); }
    QString percent() const { return toText(content_.percent); }
    QString caption() const { return toText(content_.caption); }
    /// Empty when there is nothing to tell.
    QString soFar() const { return toText(content_.soFar.value_or("")); }
    QString scanLabel() const { return toText(wordsOf(model_->servedSystem()).scanMachine); }

    Q_INVOKABLE void startScan();

 private:
    void update() override;

    const std::shared_ptr<CleanupViewModel> model_;
    const std::shared_ptr<LiveSums> sums_;
    ScanContent content_;
};

}  // namespace tidewell
