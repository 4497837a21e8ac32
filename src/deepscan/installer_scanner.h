#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "deepscan/big_item.h"
#include "deepscan/knowledge/knowledge.h"
#include "platform/files.h"
#include "platform/freed_usage.h"
#include "platform/host.h"

namespace tidewell {

/// What an installer must occupy to be listed.
inline constexpr ByteCount installerMinimumSize = ByteCount{5} * 1024 * 1024;

/// The first level below a place of downloads at which nothing is looked at any more.
inline constexpr int installerMaximumLevel = 7;

/// The kind of installer that a file is on machines of a system, by its name and, where that does
/// not tell, by its first bytes; null if it is none.
const InstallerType* installerType(const std::string& path, System system);

/// "today", "3 days ago", "11 months ago", "2 years ago": here a month has 30 days and a year 360.
/// What is not a whole day old, or lies in the future, is of today.
std::string installerAge(std::int64_t days);

/// What the user reads about an installer. `added` is absent where no date could be read.
std::string installerNote(const InstallerType& type, std::optional<Date> added, Date now);

/// Finds disk images and installer packages left in Downloads and on the Desktop, a few folders
/// deep. Has no state but the machine that it works on; blocks; any thread but the main one. What
/// cannot be read is passed over.
class InstallerScanner {
 public:
    explicit InstallerScanner(Host host);

    /// Largest first; of equal size in the order in which they were met. Where the machine's
    /// knowledge wants each byte listed once, without those in one of the `listed` folders.
    std::vector<BigItem> scan(const std::vector<BigItem>& listed = {}) const;

 private:
    std::vector<std::string> downloads() const;
    BigItem describe(const std::string& path, const InstallerType& type,
                     const FreedUsage& usage) const;

    Host host_;
};

}  // namespace tidewell
