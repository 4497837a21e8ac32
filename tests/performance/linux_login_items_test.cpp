#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <tuple>

#include "performance/login_items.h"
#include "support/sample_machine.h"

namespace tidewell {
namespace {

using test::SampleMachine;
using Row = std::tuple<std::string, std::string, std::string, std::string>;

class LinuxLoginItems : public testing::Test {
 protected:
    LinuxLoginItems() : host(machine.host()) {
        host.system = System::linux;
        host.baseFolders.config = machine.path("~/.config");
        host.baseFolders.data = machine.path("~/.local/share");
    }
    /// Label, program, scope and place of each; those within the machine as it has them.
    std::vector<Row> rows() const {
        const auto within = [this](const std::string& path) {
            return path.starts_with(host.root) ? path.substr(host.root.size()) : path;
        };
        std::vector<Row> found;
        for (const auto& item : loginItems(host))
            found.emplace_back(item.label, within(item.program), item.scope, within(item.plistURL));
        return found;
    }
    void entry(const std::string& path, const std::string& lines) const {
        machine.text(path, "[Desktop Entry]\nType=Application\n" + lines);
    }

    const SampleMachine machine;
    Host host;
};

TEST_F(LinuxLoginItems, AreTheAutostartEntriesThatStart) {
    machine.tool("/usr/bin/chat", "");
    entry("~/.config/autostart/chat.desktop", "Name=Chat\nExec=chat --hidden %U\n");
    entry("/etc/xdg/autostart/chat.desktop", "Name=System's chat\nExec=/usr/bin/other\n");
    entry("/etc/xdg/autostart/tray.desktop", "Exec=\"/opt/my tray/run\" -x\nTryExec=chat\n");
    entry("/etc/xdg/autostart/masked.desktop", "Name=Masked\nExec=chat\n");
    entry("~/.config/autostart/masked.desktop", "Hidden=true\n");
    entry("~/.config/autostart/off.desktop", "Exec=chat\nX-GNOME-Autostart-enabled=false\n");
    entry("~/.config/autostart/gone.desktop", "Exec=chat\nTryExec=/usr/bin/gone\n");
    entry("~/.config/autostart/empty.desktop", "Name=Empty\n");
    machine.text("~/.config/autostart/notes.txt", "[Desktop Entry]\nExec=chat\n");
    machine.text("~/.config/autostart/binary.desktop", std::string("\0\xff[", 3));
    machine.text("~/.config/autostart/huge.desktop",
                 "[Desktop Entry]\nExec=chat\n" + std::string(2 << 20, '#'));
    std::filesystem::create_symlink("loop.desktop",
                                    machine.path("~/.config/autostart/loop.desktop"));
    const auto home = host.home.substr(host.root.size());
    EXPECT_EQ(rows(),
              (std::vector<Row>{
                  {"Chat", "/usr/bin/chat", "You", home + "/.config/autostart/chat.desktop"},
                  {"tray", "/opt/my tray/run", "System", "/etc/xdg/autostart/tray.desktop"}}));
}

TEST_F(LinuxLoginItems, AreTheUnitsThatAreEnabled) {
    const auto enable = [this](const std::string& link) {
        machine.link(link, "/usr/lib/systemd/user/whatever");  // the name counts
    };
    machine.text("/usr/lib/systemd/user/sync.service",
                 "[Unit]\nDescription=Sync files\n[Service]\nExecStart=-/usr/bin/sync --all\n"
                 "ExecStart=/bin/second\n");
    machine.text("~/.config/systemd/user/mail@.service", "[Service]\nExecStart=/usr/bin/mail %i\n");
    machine.text("/usr/lib/systemd/user/backup.timer", "[Unit]\nDescription=Back up\n");
    machine.text("/usr/lib/systemd/user/backup.service", "[Service]\nExecStart=@/bin/backup x\n");
    machine.text("/usr/lib/systemd/user/masked.service", "[Service]\nExecStart=/bin/no\n");
    std::filesystem::create_symlink("/dev/null",
                                    machine.path("~/.config/systemd/user/masked.service"));
    machine.text("/usr/lib/systemd/user/app-chat@.service", "[Service]\nExecStart=/bin/no\n");
    machine.text("/usr/lib/systemd/user/idle.service", "[Service]\nExecStart=/bin/no\n");
    // What adds to a unit, and what is no unit.
    machine.text("/usr/lib/systemd/user/sync.service.d/10.conf",
                 "[Service]\nExecStart=\nExecStart=/bin/patched\n");
    machine.text("/usr/lib/systemd/user/sync.service.d/90.conf", "[Unit]\nDescription=Hidden\n");
    machine.text("~/.config/systemd/user/sync.service.d/90.conf", "[Unit]\nDescription=Mine\n");
    machine.text("~/.config/systemd/user/sync.service.d/99.conf", std::string("\0\xff[Unit", 7));
    machine.link("~/.config/systemd/user/sync.service.d/95.conf", "95.conf");
    machine.text("~/.config/systemd/user/mail@.service.d/a.conf", std::string(2 << 20, '#'));
    machine.text("~/.config/systemd/user/mail@work.service.d/b.conf",
                 "[Unit]\nDescription=Work mail\n");
    machine.link("~/.config/systemd/user/round.service", "round.service");
    machine.text("~/.config/systemd/user/huge.service", std::string(2 << 20, '#'));
    const std::string own = "~/.config/systemd/user/default.target.wants/";
    for (const auto* name :
         {"sync.service", "mail@work.service", "masked.service", "app-chat@autostart.service",
          "basic.target", "dangling.service", "round.service", "huge.service"})
        enable(own + name);
    enable("/etc/systemd/user/default.target.wants/sync.service");
    enable("/etc/systemd/user/timers.target.wants/backup.timer");
    enable("/etc/systemd/user/default.target.requires/idle.service");
    const auto home = host.home.substr(host.root.size());
    EXPECT_EQ(
        rows(),
        (std::vector<Row>{
            {"Back up", "/bin/backup", "System", "/usr/lib/systemd/user/backup.timer"},
            {"Mine", "/bin/patched", "You", "/usr/lib/systemd/user/sync.service"},
            {"Work mail", "/usr/bin/mail", "You", home + "/.config/systemd/user/mail@.service"}}));
}

}  // namespace
}  // namespace tidewell
