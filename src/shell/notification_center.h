#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tidewell {

/// Signals between parts of the program that do not know each other, by name. Main thread only;
/// delivery is synchronous, in the order of registration.
class NotificationCenter {
 public:
    /// Gets what was posted with the name, if anything.
    using Observer = std::function<void(const std::optional<std::string>& object)>;
    /// Keeps an observer registered: letting go of it ends the registration.
    using Registration = std::shared_ptr<const Observer>;

    [[nodiscard]] Registration observe(std::string_view name, Observer observer);
    void post(std::string_view name, const std::optional<std::string>& object = std::nullopt);

 private:
    std::map<std::string, std::vector<std::weak_ptr<const Observer>>, std::less<>> observers_;
};

/// The names that the program posts.
inline constexpr std::string_view runScanNotification = "TidewellRunScan";
inline constexpr std::string_view openSectionNotification = "TidewellOpenSection";
inline constexpr std::string_view showAboutNotification = "TidewellShowAbout";

}  // namespace tidewell
