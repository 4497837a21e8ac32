#include "advisor/linux/linux_findings.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <tuple>

#include "advisor/screens/advisor_content.h"
#include "platform/disk_usage.h"
#include "support/sample_machine.h"
#include "support/test_loop.h"

namespace tidewell::test {
namespace {

/// What a finding comes to: its size, its action and its command.
using Told = std::tuple<std::optional<ByteCount>, FindingAction, std::string>;

class LinuxFindings : public testing::Test {
 protected:
    std::map<std::string, Told> told() const {
        std::map<std::string, Told> list;
        for (const auto& each : linuxFindings(machine.host()))
            list[each.id] = {each.sizeBytes, each.action, each.command};
        return list;
    }
    void deploy(const std::string& ref, const std::string& metadata) const {
        const auto folder = "~/.local/share/flatpak/" + ref;
        machine.file(folder + "/0a1b/files/x", megabyte);
        machine.text(folder + "/0a1b/metadata", metadata);
        machine.link(folder + "/active", "0a1b");
    }

    const SampleMachine machine{System::linux};
};

TEST_F(LinuxFindings, AreWhatToolsAndFoldersTellAndNothingElse) {
    using enum FindingAction;
    EXPECT_EQ(told(), (std::map<std::string, Told>{})) << "a machine without any of it";
    machine.tool("/usr/bin/podman",
                 R"sh([ "$1" = images ] && echo '[{"Size":900,"SharedSize":200},{"Size":50}]')sh");
    machine.text("/var/run/docker.sock", "");
    machine.tool("/usr/bin/docker", R"sh(
[ "$1" = images ] && printf '1.5GB\n20.5kB\n' && exit
printf 'Images\t9GB (50%%)\nBuild Cache\t2MB\n')sh");
    machine.tool("/usr/local/go/bin/go", "echo " + machine.path("~/go/pkg/mod") + "\n");
    machine.file("~/go/pkg/mod/x", 3 * megabyte);
    machine.tool("/usr/bin/pnpm", "");
    machine.file("~/.local/share/pnpm/store/v3/files/own", 2 * megabyte);
    machine.file("~/.local/share/pnpm/store/v3/files/linked", 5 * megabyte);
    std::filesystem::create_hard_link(machine.path("~/.local/share/pnpm/store/v3/files/linked"),
                                      machine.path("~/linked"));
    machine.file("/var/log/journal/one", 600'000'000);
    machine.file("/var/cache/apt/archives/a.deb", 4 * megabyte);
    machine.tool("/usr/bin/apt-get", "[ \"$3\" = autoremove ] && echo 'Remv old [1]'\n");
    machine.text("/var/lib/dpkg/status",
                 "Package: old\nStatus: install ok installed\nInstalled-Size: 7\n");
    for (const auto* revision : {"11", "12", "13"})
        machine.file("/var/lib/snapd/snaps/paint_" + std::string(revision) + ".snap");
    machine.folder("/snap/paint/13");
    machine.link("/snap/paint/current", "13");
    machine.file("/var/lib/systemd/coredump/core.a.0.zst", megabyte);
    machine.file("/var/lib/systemd/coredump/core.'; rm -rf ~; '", megabyte);
    machine.folder("/timeshift/snapshots/2026-01-01");

    const auto aboveLimit = allocatedSize(machine.path("/var/log/journal")) - 500'000'000;
    EXPECT_EQ(
        told(),
        (std::map<std::string, Told>{
            {"podman-images", {750, run, "podman image prune --force"}},
            {"docker-leftovers",
             {1'502'020'500, run, "docker builder prune --force && docker image prune --force"}},
            {"go-modules", {3 * megabyte, run, "go clean -modcache"}},
            {"pnpm-store", {2 * megabyte, run, "pnpm store prune"}},
            {"system-journal", {aboveLimit, copy, "sudo journalctl --vacuum-size=500M"}},
            {"downloaded-packages", {4 * megabyte, copy, "sudo apt-get clean"}},
            {"unneeded-packages", {7 * kilobyte, copy, "sudo apt-get autoremove --purge"}},
            {"old-snap-revisions",
             {8 * kilobyte, copy,
              "sudo snap remove paint --revision=11 && sudo snap remove paint --revision=12"}},
            {"core-dumps", {megabyte, copy, "sudo rm /var/lib/systemd/coredump/core.a.0.zst"}},
            {"system-snapshots", {std::nullopt, none, ""}},
        }));
    machine.tool("/usr/bin/apt-get", "echo 'Remv gnome-shell [1]'\n");
    EXPECT_EQ(unneededPackages(machine.host())->severity, FindingSeverity::warning);
}

TEST_F(LinuxFindings, OfToolsThatFailOrTalkNonsenseAreNone) {
    machine.text("/var/run/docker.sock", "");
    machine.text("/var/lib/dpkg/status", "");
    machine.file("~/Documents/x", 2 * megabyte);
    for (const auto* script :
         {"echo '[{\"Size\":9}]'; echo '9GB'; echo 'Remv a [1]'; exit 1\n", "yes 'Remv '\n",
          "head -c 100000 /dev/urandom\n", "echo /etc\n", "echo ..\n", "echo '{\"a\":1}'\n",
          "echo '-5GB'; echo 'nan'; echo '1e999GB'; echo 'Remv ;reboot [1]'\n", "kill -9 $$\n"}) {
        for (const auto* tool : {"podman", "docker", "go", "apt-get"})
            machine.tool("/usr/bin/" + std::string(tool), script);
        EXPECT_EQ(told(), (std::map<std::string, Told>{})) << script;
    }
}

TEST_F(LinuxFindings, FlatpaksRuntimesAreUnusedOnlyIfNothingLeadsToThem) {
    machine.tool("/usr/bin/flatpak", "");
    machine.text("~/.local/share/flatpak/repo/config", "[core]\nxa.pinned=\n");
    const std::string app = "[Application]\nname=org.acme.Maps\nruntime=org.p.Platform/x/2\n";
    deploy("app/org.acme.Maps/x/stable", app);
    deploy("runtime/org.p.Platform/x/2", "[Runtime]\nruntime=org.p.Platform/x/2\n");
    deploy("runtime/org.p.Platform.GL/x/1", "[ExtensionOf]\nref=runtime/org.p.Platform/x/2\n");
    deploy("runtime/org.acme.Maps.Locale/x/stable",
           "[ExtensionOf]\nref=app/org.acme.Maps/x/stable\n");
    EXPECT_FALSE(unusedFlatpakRuntimes(machine.host()));
    deploy("runtime/org.p.Platform/x/1", "[Runtime]\nruntime=org.p.Platform/x/1\n");
    deploy("runtime/org.p.Platform.Locale/x/1", "[ExtensionOf]\nref=runtime/org.p.Platform/x/1\n");
    machine.file("~/.local/share/flatpak/runtime/org.odd.Thing/x/1/0a1b/files/x");
    const auto finding = unusedFlatpakRuntimes(machine.host());
    ASSERT_TRUE(finding);
    EXPECT_TRUE(finding->detail.starts_with("2 runtimes that none")) << finding->detail;
    for (const auto* pin :
         {"x;runtime/org.p.Platform/x/1", "runtime/org.p.*", "runtime/org.p.Platform//1"}) {
        machine.text("~/.local/share/flatpak/repo/config", "xa.pinned=" + std::string(pin) + "\n");
        EXPECT_FALSE(unusedFlatpakRuntimes(machine.host())) << pin;
    }
    machine.remove("~/.local/share/flatpak/repo/config");
    EXPECT_FALSE(unusedFlatpakRuntimes(machine.host())) << "nobody knows what the user keeps";
}

TEST_F(LinuxFindings, AreRunWordByWordAndGoOnceTheyWentWell) {
    TestLoop loop;
    machine.text("/var/run/docker.sock", "");
    const auto tool = [this](const char* end) {
        machine.tool("/usr/bin/docker",
                     "printf '%s|' \"$@\" >> \"$0.words\"\n"
                     "[ \"$1\" = images ] && echo 1GB\n" +
                         std::string(end));
    };
    tool("exit 0\n");
    const auto model = std::make_shared<AdvisorViewModel>(machine.host());
    spawn(model, &AdvisorViewModel::scan);
    loop.runAll();
    machine.remove("/usr/bin/docker.words");
    tool("exit 3\n");
    const auto runIt = [&] {
        spawn(model, &AdvisorViewModel::run, std::string("docker-leftovers"));
        loop.runAll();
    };
    runIt();
    EXPECT_EQ(machine.contentOf("/usr/bin/docker.words"), "builder|prune|--force|");
    EXPECT_EQ(model->lastMessage(),
              "That didn't work. Try it in a terminal: "
              "docker builder prune --force && docker image prune --force");
    EXPECT_EQ(model->reclaimableBytes(), 1'000'000'000);
    tool("exit 0\n");
    runIt();
    EXPECT_EQ(model->lastMessage(), "Pruned Docker's build cache and images.");
    EXPECT_FALSE(model->hasFindings());
    EXPECT_EQ(advisorContent(*model, Date()).notice->line,
              "Nothing that your system's own tools could trim.");
}

}  // namespace
}  // namespace tidewell::test
