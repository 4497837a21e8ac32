#include "deepscan/container_scanner.h"

#include <gtest/gtest.h>

#include "support/sample_machine.h"

namespace tidewell::test {
namespace {

struct Containers : testing::Test {
    /// "path|command|megabytes" of each item.
    std::vector<std::string> scan() const {
        std::vector<std::string> lines;
        for (const auto& item : ContainerScanner(machine.host()).scan())
            lines.push_back(std::string(machine.host().relativeToHome(item.id)) + "|" +
                            item.reclaimCommand.value_or("none") + "|" +
                            std::to_string(item.sizeBytes / megabyte));
        return lines;
    }
    using Lines = std::vector<std::string>;

    SampleMachine machine;
};

TEST_F(Containers, MeasureTheDisksFolderAndShowTheDiskInside) {
    machine.folder("/Applications/Docker.app");
    EXPECT_EQ(scan(), Lines{}) << "installed, never started";
    machine.file("~/Library/Containers/com.docker.docker/logs", 150 * megabyte);
    machine.file("~/Library/Containers/com.docker.docker/Data/vms/disk", 99 * megabyte);
    EXPECT_EQ(scan(), Lines{}) << "the disks are too small";
    machine.file("~/Library/Containers/com.docker.docker/Data/vms/0/console", 10 * megabyte);
    EXPECT_EQ(scan(), Lines{"Library/Containers/com.docker.docker/Data/vms/0|docker system prune|"
                            "109"});
    machine.file("~/Library/Containers/com.docker.docker/Data/vms/0/data/disk", 10 * megabyte);
    EXPECT_EQ(scan(), Lines{"Library/Containers/com.docker.docker/Data/vms/0/data|docker system "
                            "prune|119"});
}

TEST_F(Containers, FallThroughToTheNextPlaceThatExists) {
    machine.file("~/.orbstack/disk", 100 * megabyte);
    EXPECT_EQ(scan(), Lines{".orbstack|docker system prune|100"});
    machine.folder("~/.orbstack/data");
    EXPECT_EQ(scan(), Lines{}) << "the first place that exists counts, whatever it holds";
}

TEST_F(Containers, ComeWithTheirOwnCommandInTheOrderOfTheTableAtEqualSizes) {
    machine.file("~/.lima/disk", 100 * megabyte);
    machine.file("~/.local/share/containers/podman/machine/disk", 100 * megabyte);
    machine.file("~/.colima/disk", 101 * megabyte);
    EXPECT_EQ(scan(), (Lines{".colima|docker system prune -a|101",
                             ".local/share/containers/podman/machine|podman system prune -a|100",
                             ".lima|none|100"}));
}

}  // namespace
}  // namespace tidewell::test
