#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "cleanup/catalogue/constant_texts.h"
#include "cleanup/kept_entries.h"
#include "deepscan/big_item.h"
#include "deepscan/folder_knowledge.h"
#include "platform/host.h"

namespace tidewell {

struct KnownFolder {
    std::string_view name;
    FolderKnowledge::Fact fact;
};

/// A tool that keeps disks of containers or virtual machines. Each list is tried in its order.
struct ContainerEngine {
    std::string_view name;
    ConstantTexts detect;   ///< the tool is there if any of these exists
    ConstantTexts measure;  ///< the first that exists is what is measured
    ConstantTexts reveal;   ///< the first that exists is what is shown to the user
    std::string_view note;
    std::optional<std::string_view> command;  ///< frees the room
};

/// What must be said of an entry beside its extension, by its first bytes if by more than its type.
enum class InstallerSign { none, file, shellArchive, setupProgram, diskImage, appImage };

struct InstallerType {
    std::string_view extension;
    std::string_view label;
    InstallerSign sign = InstallerSign::none;
    std::string_view advice = "Safe to trash once you've installed the app.";
};

/// How an installer counts that lies in a folder which is listed as a whole.
enum class NestedInstallers { listedToo, partOfTheirFolder };

/// What lies directly in the home folder beside the folders that people see.
enum class HomeEntries {
    passedOver,
    listed,  ///< hidden folders, and files, each as one thing
};

/// What lies directly in the home folder, and the Trash.
enum class TopEntries {
    neverGo,
    goUnlessRoots,  ///< nor what holds a root or an engine's disks, wherever it lies
};

/// Whether what lies in the Trash is told of, apart from the big items.
enum class TrashInList { none, listed };

/// What the deep scan knows of one system's machines. Paths are table paths.
struct DeepScanKnowledge {
    std::span<const KnownFolder> names;   ///< folders by their whole name
    std::span<const KnownFolder> parts;   ///< by a part of it, after the whole names
    std::span<const KnownFolder> places;  ///< by where they lie, with all below; the first counts

    /// The folders whose entries are listed, beside the visible ones of the home folder.
    std::span<const std::string_view> roots;
    std::span<const std::string_view> homeRootExclusions;
    HomeEntries homeEntries = HomeEntries::passedOver;
    TopEntries topEntries = TopEntries::neverGo;
    TrashInList trash = TrashInList::none;
    /// What an entry is by its name and its place.
    BigItem::Kind (*classify)(std::string_view path, const Host& host, const KeptEntries& kept);

    std::span<const InstallerType> installers;
    NestedInstallers nested = NestedInstallers::listedToo;
    std::span<const ContainerEngine> engines;
    /// Folders whose room an engine's item tells, or that are the business of another tool.
    std::span<const std::string_view> walkExclusions;
    /// Said of an engine's disks of which something could not be read; empty if nothing is said.
    std::string_view unreadNote;
};

DeepScanKnowledge deepScanKnowledge(System system);

DeepScanKnowledge macOSDeepScanKnowledge();
DeepScanKnowledge linuxDeepScanKnowledge();

}  // namespace tidewell
