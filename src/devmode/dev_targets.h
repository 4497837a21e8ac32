#pragma once

#include <vector>

#include "cleanup/cleanup_model.h"
#include "platform/host.h"

namespace tidewell {

/// What Dev Mode measures before the artifacts of projects: the catalogue's developer rows and a
/// few others, in the catalogue's order, and then model and package caches that no catalogue row
/// has.
std::vector<CleanupTarget> devTargets(const Host& host);

}  // namespace tidewell
