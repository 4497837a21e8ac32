#include "screens/app_icons.h"
#include "screens/states.h"

namespace tidewell::gallery {

namespace {

using Phase = PerformanceViewModel::Phase;

constexpr ByteCount megabyte = 1'000'000;

std::vector<RunningApp> runningApps(const Sample& sample) {
    lookLike(sample, "Film Cutter", QColor(200, 60, 90));
    lookLike(sample, "Tidal Studio", QColor(70, 120, 240));
    lookLike(sample, "Mail Courier", QColor(240, 180, 70));
    std::vector<RunningApp> apps;
    const auto add = [&](const std::string& name, ByteCount memory) {
        const auto id = static_cast<std::int32_t>(400 + apps.size());
        apps.push_back({.id = id,
                        .name = name,
                        .bundleID = {},
                        .url = sample.machine.path("/Applications/" + name + ".app"),
                        .memoryBytes = memory,
                        .process = {}});
    };
    add("Film Cutter", 4'870 * megabyte);
    add("Skyline Maps", 2'130 * megabyte);
    add("Sketchpad with a name that is so long that it never fits beside what it holds, anywhere",
        1'240 * megabyte);
    add("Tidal Studio", 893 * megabyte);
    add("Mail Courier", 412 * megabyte);
    add("Notebook", 96 * megabyte);
    add("Clock", 4 * megabyte);
    add("Unread", 0);
    return apps;
}

std::vector<LoginItem> loginItems() {
    return {
        {"1", "com.example.Backup", "/Library/Backup/backupd", {}, "System"},
        {"2",
         "com.example.courier.helper",
         "/Applications/Mail "
         "Courier.app/Contents/Library/Helpers/And/Deeper/Still/Where/Nobody/Looks/"
         "CourierHelper.app/Contents/MacOS/CourierHelper",
         {},
         "You"},
        {"3",
         "com.example.printers.and.all.that.belongs.to.them.with.a.label.that.does.not.end.soon"
         ".after.its.begin",
         "—",
         {},
         "System"},
        {"4", "homebrew.mxcl.postgresql", "/opt/homebrew/opt/postgresql/bin/postgres", {}, "You"},
        {"5", "org.example.Sync", "/Users/ada/bin/sync", {}, "You"},
    };
}

PerformanceViewModel& listed(Sample& sample) {
    auto& model = *sample.view->performanceModel;
    sample.view->mode = Mode::performance;
    model.apps = runningApps(sample);
    model.loginItems = loginItems();
    model.memoryUsed = 11'990 * megabyte;
    model.memoryTotal = 17'180 * megabyte;
    model.phase = Phase::list;
    return model;
}

const std::vector<ScreenState> states = {
    {"performance-idle", [](Sample& sample) { sample.view->mode = Mode::performance; }},
    {"performance-scanning",
     [](Sample& sample) {
         sample.view->performanceModel->phase = Phase::scanning;
         sample.view->mode = Mode::performance;
     }},
    {"performance-memory", [](Sample& sample) { listed(sample); }},
    {"performance-quitting",
     [](Sample& sample) {
         auto& model = listed(sample);
         model.busyPID = 401;
         model.lastMessage = "Asked Skyline Maps to quit. Its memory frees as it closes.";
     }},
    {"performance-nothing-runs",
     [](Sample& sample) {
         auto& model = listed(sample);
         model.apps = std::vector<RunningApp>();
         model.memoryUsed = 0;
     }},
    {"performance-startup", [](Sample& sample) { listed(sample); }, "Startup"},
};

}  // namespace

std::vector<ScreenState> performanceStates() {
    return states;
}

}  // namespace tidewell::gallery
