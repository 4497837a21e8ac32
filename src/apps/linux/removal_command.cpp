#include "apps/linux/removal_command.h"

#include <algorithm>
#include <array>

#include "apps/linux/debian_packages.h"
#include "platform/process.h"

namespace tidewell {

namespace {

constexpr std::chrono::seconds rehearsalLimit{10};

/// Sessions, what shows and greets them, and what all of it stands on.
constexpr auto desktopPackages = std::to_array<std::string_view>({
    "apt",
    "budgie-desktop",
    "cinnamon",
    "cinnamon-session",
    "dbus",
    "gdm3",
    "gnome-core",
    "gnome-session",
    "gnome-session-bin",
    "gnome-shell",
    "kde-plasma-desktop",
    "kubuntu-desktop",
    "lightdm",
    "lxde-core",
    "lxqt-core",
    "lxqt-session",
    "lxsession",
    "mate-desktop-environment-core",
    "mate-session-manager",
    "network-manager",
    "plasma-desktop",
    "plasma-workspace",
    "sddm",
    "sudo",
    "sway",
    "systemd-sysv",
    "ubuntu-desktop",
    "ubuntu-desktop-minimal",
    "ubuntu-session",
    "xfce4",
    "xfce4-session",
    "xserver-xorg-core",
    "xubuntu-desktop",
});

}  // namespace

std::string removalCommandText(const InstalledApp& app) {
    if (app.kind == AppKind::flatpakSystem)
        return "flatpak uninstall --system " + app.installerName;
    if (app.kind == AppKind::snap) return "sudo snap remove " + app.installerName;
    return "sudo apt-get remove " + app.installerName;
}

std::vector<std::string> rehearsedRemovals(std::string_view output) {
    std::vector<std::string> names;
    while (!output.empty()) {
        auto line = output.substr(0, output.find('\n'));
        output.remove_prefix(std::min(line.size() + 1, output.size()));
        constexpr std::array<std::string_view, 2> marks = {"Remv ", "Purg "};
        const auto mark = std::ranges::find_if(
            marks, [line](std::string_view each) { return line.starts_with(each); });
        if (mark == marks.end()) continue;
        line.remove_prefix(mark->size());
        // "name:arch [version]"
        const auto name = line.substr(0, line.find_first_of(" :"));
        if (isDebianPackageName(name)) names.emplace_back(name);
    }
    return names;
}

std::vector<std::string> neededByDesktop(const std::vector<std::string>& packages) {
    std::vector<std::string> needed;
    std::ranges::copy_if(packages, std::back_inserter(needed), [](const std::string& package) {
        return std::ranges::find(desktopPackages, package) != desktopPackages.end();
    });
    return needed;
}

ShownCommand removalCommand(const InstalledApp& app, const Host& host) {
    ShownCommand command{.text = removalCommandText(app)};
    if (app.kind != AppKind::package) return command;
    const auto run =
        runTool(host.toolPath("/usr/bin/apt-get"), {"-s", "-q", "remove", app.installerName},
                ToolOutput::keep, rehearsalLimit);
    if (!run || run->exitStatus != 0) return command;
    command.takesAlong = rehearsedRemovals(run->output);
    command.neededByDesktop = neededByDesktop(command.takesAlong);
    std::erase(command.takesAlong, app.installerName);
    return command;
}

}  // namespace tidewell
