#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cleanup/cleanup_model.h"
#include "cleanup/kept_entries.h"
#include "platform/host.h"

namespace tidewell {

/// Walks the home folder for the rebuildable folders of software projects, and makes a target of
/// each, sorted by name and then by path. Blocks; any thread but the main one. What is unreadable
/// is passed over.
std::vector<CleanupTarget> findProjectArtifacts(const Host& host);

/// The artifact that a path is or lies in, as that search would find it. Reads from the disk what
/// stands beside a folder where that counts; any thread but the main one.
std::optional<CleanupTarget> artifactHolding(std::string_view path, const Host& host,
                                             const KeptEntries& kept);

/// Whether what lies in a personal folder, in something with the name of build output, is that also
/// by the rule of the machine: looks on the disk for the marker beside it, where one is wanted.
/// True for what lies in no personal folder. Any thread but the main one.
bool isProvenBuildOutput(std::string_view path, const KeptEntries& kept, System system);

/// The target of one artifact.
CleanupTarget artifactTarget(std::string_view name, std::string_view path, const Host& host);

}  // namespace tidewell
