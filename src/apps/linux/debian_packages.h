#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>

#include "platform/byte_count.h"
#include "platform/host.h"

namespace tidewell {

/// A package that is installed on a Debian machine.
struct DebianPackage {
    std::string version;
    ByteCount sizeBytes = 0;  ///< what the package itself says that it takes up
};

using DebianPackages = std::map<std::string, DebianPackage, std::less<>>;

/// Whether this may be a package's name, so that it means nothing but itself in a command.
bool isDebianPackageName(std::string_view name);

/// The packages that the text of dpkg's "status" tells to be installed. Records that are damaged,
/// or whose name is none, are passed over.
DebianPackages parsePackages(std::string_view status);

/// The same for a machine; none where there is no dpkg, or where its file is too long to be one.
/// No tool is started. Blocks; any thread.
DebianPackages installedPackages(const Host& host);

/// Which package each of these files belongs to, by the machine's own absolute paths. A file of
/// none is left out. Blocks; any thread.
std::map<std::string, std::string> packagesOfFiles(const Host& host,
                                                   const std::set<std::string, std::less<>>& files);

}  // namespace tidewell
