#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "deepscan/big_item.h"
#include "platform/files.h"
#include "platform/host.h"

namespace tidewell {

/// What an installer must occupy to be listed.
inline constexpr ByteCount installerMinimumSize = ByteCount{5} * 1024 * 1024;

/// The first level below a place of downloads at which nothing is looked at any more.
inline constexpr int installerMaximumLevel = 7;

/// The extension in lower case if it is a disk image's or an installer package's; "" otherwise.
std::string_view installerExtension(std::string_view path);

/// "today", "3 days ago", "11 months ago", "2 years ago": here a month has 30 days and a year 360.
/// What is not a whole day old, or lies in the future, is of today.
std::string installerAge(std::int64_t days);

/// What the user reads about an installer. `added` is absent where no date could be read.
std::string installerNote(std::string_view extension, std::optional<Date> added, Date now);

/// Finds disk images and installer packages left in Downloads and on the Desktop, a few folders
/// deep. Has no state but the machine that it works on; blocks; any thread but the main one. What
/// cannot be read is passed over.
class InstallerScanner {
 public:
    explicit InstallerScanner(Host host);

    /// Largest first; of equal size in the order in which they were met.
    std::vector<BigItem> scan() const;

 private:
    std::vector<std::string> installerPaths() const;
    BigItem describe(const std::string& path, ByteCount size) const;

    Host host_;
};

}  // namespace tidewell
