#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cleanup/cleanup_model.h"
#include "cleanup/kept_entries.h"
#include "platform/folder_walk.h"
#include "platform/host.h"

namespace tidewell {

/// Walks the home folder for the rebuildable folders of software projects, and makes a target of
/// each, sorted by name and then by path. Blocks; any thread but the main one. What is unreadable
/// is passed over.
std::vector<CleanupTarget> findProjectArtifacts(const Host& host);

/// Whether a folder of this name, among these siblings, is a project's artifact: by its name alone,
/// or for "build", "target" and what else people use such names for, and where the rule says so for
/// all, by a project's marker beside it.
bool isProjectArtifact(std::string_view name, std::span<const FolderEntry> siblings, System system,
                       BuildOutput rule = BuildOutput::byName);

/// Whether what lies in a personal folder, in something with the name of build output, is that also
/// by the rule of the machine: looks on the disk for the marker beside it, where one is wanted.
/// True for what lies in no personal folder. Any thread but the main one.
bool isProvenBuildOutput(std::string_view path, const KeptEntries& kept, System system);

/// The target of one artifact.
CleanupTarget artifactTarget(std::string_view name, std::string_view path, const Host& host);

}  // namespace tidewell
