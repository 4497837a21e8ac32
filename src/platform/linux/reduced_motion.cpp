#include "platform/reduced_motion.h"

#include <string>
#include <string_view>

#include "platform/environment.h"
#include "platform/process.h"

namespace tidewell {

namespace {

/// A setting of the desktop's portal, and how a reply ends that asks for less motion.
struct MotionSetting {
    std::string_view group;
    std::string_view key;
    std::string_view replyEnd;
};

constexpr MotionSetting motionSettings[] = {
    {"org.freedesktop.appearance", "reduced-motion", "uint32 1\n"},
    {"org.gnome.desktop.interface", "enable-animations", "boolean false\n"},
};

bool asksForLess(const std::string& messenger, const MotionSetting& setting) {
    const auto run =
        runTool(messenger,
                {"--session", "--print-reply", "--reply-timeout=2000",
                 "--dest=org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
                 "org.freedesktop.portal.Settings.Read", "string:" + std::string(setting.group),
                 "string:" + std::string(setting.key)},
                ToolOutput::keep);
    return run && run->exitStatus == 0 && run->output.ends_with(setting.replyEnd);
}

}  // namespace

bool wantsReducedMotion(const Host& host) {
    const auto wish = environmentValue("TIDEWELL_REDUCE_MOTION");
    if (!wish.empty()) return wish == "1";
    const auto messenger = host.systemPath("/usr/bin/dbus-send");
    for (const auto& setting : motionSettings)
        if (asksForLess(messenger, setting)) return true;
    return false;
}

}  // namespace tidewell
