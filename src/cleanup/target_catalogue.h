#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cleanup/catalogue/row.h"
#include "cleanup/table_paths.h"
#include "platform/host.h"

namespace tidewell {

/// The vocabulary of the Clean tool on the machines of a system, in the order in which a scan
/// measures it. The words are what the user reads before agreeing to lose a thing.
Catalogue catalogueOf(System system);

/// The paths of a row, as they are stored.
std::vector<std::string> storedPaths(const CatalogueRow& row);

/// Whether a standardised path is one that a row names, or lies below one. By the text alone.
bool claims(const CatalogueRow& row, std::string_view path, const Host& host);

/// What a row stands for on a machine.
CleanupTarget targetOf(const CatalogueRow& row, const Host& host);

/// The catalogue's rows on a machine, in the same order.
std::vector<CleanupTarget> cleanupCatalogue(const Host& host);

/// What the catalogue's rows claim for themselves, but for those that sweep.
std::vector<TablePath> claimedPaths(const Host& host);

/// The folders on this machine that a row of Clean or Dev Mode names, but for those that sweep:
/// what may go even where it lies in a folder that must stay. Looks at the disk.
std::vector<std::string> namedCacheFolders(const Host& host);

/// The entries of swept folders that no sweep takes.
std::vector<TablePath> neverSweptPaths(const Host& host);

/// Whether one of these paths covers a standardised path.
bool covers(const std::vector<TablePath>& paths, std::string_view path);

}  // namespace tidewell
