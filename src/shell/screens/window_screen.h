#pragma once

#include <QtCore/qstring.h>

#include <memory>

#include "advisor/screens/advisor_screen.h"
#include "apps/screens/apps_screen.h"
#include "cleanup/screens/cleaned_screen.h"
#include "cleanup/screens/review_screen.h"
#include "cleanup/screens/scan_screen.h"
#include "deepscan/screens/deep_scan_screen.h"
#include "devmode/screens/dev_mode_screen.h"
#include "kit/qt/list_model.h"
#include "kit/qt/palette_value.h"
#include "kit/qt/screen.h"
#include "kit/qt/text.h"
#include "performance/screens/performance_screen.h"
#include "shell/screens/about_screen.h"
#include "shell/screens/home_screen.h"
#include "shell/screens/intro_screen.h"
#include "shell/screens/menu_bar_content.h"
#include "shell/screens/onboarding_screen.h"
#include "shell/screens/smart_scan_screen.h"
#include "shell/screens/window_content.h"

namespace tidewell {

/// Behind the main window: the sidebar, which view stands in the detail area, what lies over both,
/// and the screens of all sections.
class WindowScreen final : public Screen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(QAbstractItemModel* rows READ rows CONSTANT)
    Q_PROPERTY(QString detailView READ detailView NOTIFY changed)
    Q_PROPERTY(tidewell::PaletteValue palette READ palette NOTIFY changed)
    Q_PROPERTY(bool showsAccess READ showsAccess NOTIFY changed)
    Q_PROPERTY(bool hasFullDiskAccess READ hasFullDiskAccess NOTIFY changed)
    Q_PROPERTY(bool hasOnboarded READ hasOnboarded NOTIFY changed)
    Q_PROPERTY(bool isPlayingIntro READ isPlayingIntro NOTIFY changed)
    Q_PROPERTY(double introHomeOpacity READ introHomeOpacity NOTIFY changed)
    Q_PROPERTY(tidewell::OnboardingScreen* onboarding READ onboarding CONSTANT)
    Q_PROPERTY(tidewell::IntroScreen* intro READ intro CONSTANT)
    Q_PROPERTY(tidewell::AboutScreen* about READ about CONSTANT)
    Q_PROPERTY(tidewell::HomeScreen* home READ home CONSTANT)
    Q_PROPERTY(tidewell::SmartScanScreen* smartScan READ smartScan CONSTANT)
    Q_PROPERTY(tidewell::ScanScreen* scan READ scan CONSTANT)
    Q_PROPERTY(tidewell::ReviewScreen* review READ review CONSTANT)
    Q_PROPERTY(tidewell::CleanedScreen* cleaned READ cleaned CONSTANT)
    Q_PROPERTY(tidewell::PerformanceScreen* performance READ performance CONSTANT)
    Q_PROPERTY(tidewell::AppsScreen* apps READ apps CONSTANT)
    Q_PROPERTY(tidewell::DevModeScreen* devMode READ devMode CONSTANT)
    Q_PROPERTY(tidewell::DeepScanScreen* deepScan READ deepScan CONSTANT)
    Q_PROPERTY(tidewell::AdvisorScreen* advisor READ advisor CONSTANT)
    Q_PROPERTY(QString accessTitle READ accessTitle CONSTANT)
    Q_PROPERTY(QString quitLabel READ quitLabel CONSTANT)
    Q_PROPERTY(QString accessSymbol READ accessSymbol NOTIFY changed)

 public:
    WindowScreen(std::shared_ptr<ContentView> view, const QString& filmFolder);

    QAbstractItemModel* rows() { return &rows_; }
    QString detailView() const { return toText(content_.detailView); }
    PaletteValue palette() const { return PaletteValue(sectionPalette(content_.accent)); }
    bool showsAccess() const { return content_.showsAccess; }
    bool hasFullDiskAccess() const { return content_.hasFullDiskAccess; }
    bool hasOnboarded() const { return view_->hasOnboarded(); }
    bool isPlayingIntro() const { return view_->playingIntro(); }
    double introHomeOpacity() const { return view_->introHomeOpacity(); }
    OnboardingScreen* onboarding() { return &onboarding_; }
    IntroScreen* intro() { return &intro_; }
    AboutScreen* about() { return &about_; }
    HomeScreen* home() { return &home_; }
    SmartScanScreen* smartScan() { return &smartScan_; }
    ScanScreen* scan() { return &scan_; }
    ReviewScreen* review() { return &review_; }
    CleanedScreen* cleaned() { return &cleaned_; }
    PerformanceScreen* performance() { return &performance_; }
    AppsScreen* apps() { return &apps_; }
    DevModeScreen* devMode() { return &devMode_; }
    DeepScanScreen* deepScan() { return &deepScan_; }
    AdvisorScreen* advisor() { return &advisor_; }
    static QString quitLabel() { return toText(quitProgramLabel); }
    static QString accessTitle() { return toText(tidewell::accessTitle); }
    QString accessSymbol() const;

    /// Shows the section of the sidebar's row; nothing happens for a row that is not there.
    Q_INVOKABLE void openRow(int row);
    Q_INVOKABLE void enableAccess() { view_->permissions->openSettings(); }
    Q_INVOKABLE void showAbout() { view_->showAbout = true; }

 private:
    void update() override;

    const std::shared_ptr<ContentView> view_;
    WindowContent content_;
    ListModel<SidebarRowContent> rows_;
    OnboardingScreen onboarding_;
    IntroScreen intro_;
    AboutScreen about_;
    HomeScreen home_;
    SmartScanScreen smartScan_;
    ScanScreen scan_;
    ReviewScreen review_;
    CleanedScreen cleaned_;
    PerformanceScreen performance_;
    AppsScreen apps_;
    DevModeScreen devMode_;
    DeepScanScreen deepScan_;
    AdvisorScreen advisor_;
};

}  // namespace tidewell
