#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace tidewell {

/// The few values that outlive the program, in one small file of the user's. The window and the
/// command line may have it open at once: every call reads the file anew, and every change holds a
/// lock over its read and write, so that no sum is lost. A write is seen whole or not at all, also
/// after a crash; one that fails (a full disk, a read-only folder, another program that does not
/// let go of the lock for two seconds) leaves the old values. A damaged file is set aside as
/// "defaults.json.damaged" and read as empty. Any thread.
class UserDefaults {
 public:
    enum class Written { yes, no };

    /// `folder` is made when something is first stored.
    explicit UserDefaults(std::string folder);

    /// 0, 0.0 and false for a key that is missing or holds something else.
    std::int64_t integer(std::string_view key) const;
    double real(std::string_view key) const;
    bool boolean(std::string_view key) const;

    /// Adds to an integer, which stays at the largest value instead of overflowing.
    Written add(std::string_view key, std::int64_t amount);
    Written setReal(std::string_view key, double value);
    Written setBoolean(std::string_view key, bool value);

 private:
    std::string folder_;
};

}  // namespace tidewell
