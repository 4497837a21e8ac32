#include "deepscan/container_scanner.h"

#include <array>
#include <utility>

#include "platform/disk_usage.h"
#include "platform/files.h"

namespace tidewell {

namespace {

constexpr auto engineTable = std::to_array<ContainerScanner::Engine>({
    {
        .name = "Docker",
        .detect = {"/Applications/Docker.app", "~/Library/Containers/com.docker.docker"},
        .measure = {"~/Library/Containers/com.docker.docker/Data/vms"},
        .reveal = {"~/Library/Containers/com.docker.docker/Data/vms/0/data",
                   "~/Library/Containers/com.docker.docker/Data/vms/0"},
        .note = "Docker's VM disk: every image, container and volume. Reclaim from inside Docker, "
                "don't delete this file.",
        .command = "docker system prune",
    },
    {
        .name = "OrbStack",
        .detect = {"/Applications/OrbStack.app",
                   "~/Library/Group Containers/HUAQ24HBR6.dev.orbstack", "~/.orbstack"},
        .measure = {"~/Library/Group Containers/HUAQ24HBR6.dev.orbstack/data", "~/.orbstack/data",
                    "~/.orbstack"},
        .reveal = {"~/Library/Group Containers/HUAQ24HBR6.dev.orbstack/data", "~/.orbstack/data",
                   "~/.orbstack"},
        .note = "OrbStack's data. Reclaim from inside OrbStack; deleting this file wipes your "
                "images and containers.",
        .command = "docker system prune",
    },
    {
        .name = "Podman",
        .detect = {"~/.local/share/containers/podman/machine"},
        .measure = {"~/.local/share/containers/podman/machine"},
        .reveal = {"~/.local/share/containers/podman/machine"},
        .note = "Podman's VM disk. Reclaim from inside Podman; deleting it wipes your images and "
                "containers.",
        .command = "podman system prune -a",
    },
    {
        .name = "Colima",
        .detect = {"~/.colima"},
        .measure = {"~/.colima"},
        .reveal = {"~/.colima"},
        .note = "Colima's VM disk. Reclaim from inside; deleting it wipes your Docker images and "
                "containers.",
        .command = "docker system prune -a",
    },
    {
        .name = "Lima",
        .detect = {"~/.lima"},
        .measure = {"~/.lima"},
        .reveal = {"~/.lima"},
        .note = "Lima VM disks. Reclaim from inside the VM; deleting a disk wipes everything in "
                "it.",
        .command = std::nullopt,
    },
});

constexpr std::array<std::string_view, 4> walkExclusions = {
    "~/Library/Containers/com.docker.docker",
    "~/Library/Group Containers/group.com.docker",
    "~/Library/Application Support/Docker Desktop",
    "~/Library/Group Containers/HUAQ24HBR6.dev.orbstack",
};

}  // namespace

std::span<const ContainerScanner::Engine> ContainerScanner::engines() {
    return engineTable;
}

ContainerScanner::ContainerScanner(Host host) : host_(std::move(host)) {}

std::optional<std::string> ContainerScanner::firstExisting(const CataloguePaths& paths) const {
    for (const auto stored : paths) {
        auto path = host_.locate(stored);
        if (fileExists(path)) return path;
    }
    return std::nullopt;
}

std::optional<BigItem> ContainerScanner::find(const Engine& engine) const {
    if (!firstExisting(engine.detect)) return std::nullopt;
    const auto measured = firstExisting(engine.measure);
    if (!measured) return std::nullopt;
    const auto size = allocatedSize(*measured);
    if (size < containerMinimumSize) return std::nullopt;
    BigItem item{.id = firstExisting(engine.reveal).value_or(*measured),
                 .name = std::string(engine.name) + " data",
                 .location = "Containers & VMs",
                 .sizeBytes = size,
                 .isDirectory = true,
                 .kind = BigItem::Kind::container,
                 .note = std::string(engine.note),
                 .reclaimCommand = std::nullopt};
    if (engine.command) item.reclaimCommand = std::string(*engine.command);
    return item;
}

std::vector<BigItem> ContainerScanner::scan() const {
    std::vector<BigItem> items;
    for (const auto& engine : engineTable)
        if (auto item = find(engine)) items.push_back(std::move(*item));
    sortBySize(items);
    return items;
}

std::vector<std::string> ContainerScanner::walkExclusionPaths() const {
    std::vector<std::string> paths;
    for (const auto stored : walkExclusions) paths.push_back(host_.expand(stored));
    return paths;
}

}  // namespace tidewell
