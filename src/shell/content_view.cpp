#include "shell/content_view.h"

#include <algorithm>
#include <utility>

#include "async/executor.h"
#include "shell/opened_url.h"

namespace tidewell {

namespace {

constexpr std::string_view onboardedKey = "hasOnboarded";

}  // namespace

ContentView::ContentView(Application& application)
    : cleanupModel(std::make_shared<CleanupViewModel>(application.host)),
      appsModel(std::make_shared<AppsViewModel>(application.host)),
      deepScanModel(std::make_shared<DeepScanViewModel>(application.host)),
      diskMapModel(std::make_shared<DiskMapViewModel>(deepScanModel)),
      advisorModel(std::make_shared<AdvisorViewModel>(application.host)),
      performanceModel(std::make_shared<PerformanceViewModel>(application.host)),
      devModeModel(std::make_shared<DevModeViewModel>(application.host)),
      smartScan(std::make_shared<SmartScanController>(cleanupModel, appsModel, deepScanModel,
                                                      advisorModel)),
      permissions(std::make_shared<PermissionsModel>(application.host, application.workspace,
                                                     application.didBecomeActive)),
      theme(std::make_shared<ThemeEngine>(application.host, application.didBecomeActive)),
      sums(application.sums),
      application_(application),
      defaults_(application.host.configurationDirectory) {
    hasOnboarded = defaults_.boolean(onboardedKey);
    cleanupObserver_ = onChanged(cleanupModel->willChange, [this] { refreshWhenCleaned(); });
    auto& notifications = application.notifications;
    registrations_ = {
        notifications.observe(runScanNotification, [this](const auto&) { scanEverything(); }),
        notifications.observe(openSectionNotification,
                              [this](const auto& name) { openSection(name); }),
        notifications.observe(showAboutNotification, [this](const auto&) { showAbout = true; }),
    };
}

std::vector<Mode> ContentView::sidebarModes() const {
    std::vector<Mode> modes;
    std::ranges::copy_if(allModes, std::back_inserter(modes), [this](Mode candidate) {
        return candidate != Mode::devMode || application_.isDeveloperMachine;
    });
    return modes;
}

void ContentView::appear() {
    sums->read();
    auto& bridge = application_.bridge;
    if (bridge.autoStartScan) {
        bridge.autoStartScan = false;
        scanEverything();
    }
    const auto section = bridge.pendingSection ? modeNamed(*bridge.pendingSection) : std::nullopt;
    if (!section) return;
    bridge.pendingSection = std::nullopt;
    mode = *section;
}

void ContentView::openUrl(std::string_view url) {
    if (urlHost(url) == "scan") scanEverything();
}

void ContentView::finishOnboarding(Intro intro) {
    defaults_.setBoolean(onboardedKey, true);
    hasOnboarded = true;
    if (intro == Intro::skip) return;
    introHomeOpacity = 0.0;
    playingIntro = true;
}

void ContentView::endIntro() {
    playingIntro = false;
    introHomeOpacity = 1.0;
}

void ContentView::scanEverything() {
    mode = Mode::home;
    // A start shows only in the next turn; until then another would be let in.
    if (std::exchange(isStarting_, true)) return;
    smartScan->start();
    Executor::main().post([weak = weak_from_this()] {
        if (const auto self = weak.lock()) self->isStarting_ = false;
    });
}

void ContentView::openSection(const std::optional<std::string>& name) {
    if (const auto section = name ? modeNamed(*name) : std::nullopt) mode = *section;
}

void ContentView::refreshWhenCleaned() {
    const auto phase = cleanupModel->phase();
    if (std::exchange(lastCleanupPhase_, phase) == phase) return;
    if (phase != CleanupViewModel::Phase::done) return;
    theme->refresh();
    sums->read();
}

}  // namespace tidewell
