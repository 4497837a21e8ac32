#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tidewell {

struct TrialGroundResult;

/// What a user may do with a folder.
enum class Access { all, reading, none };

/// A folder of the program's own in which it may lay out, move and lock what it likes, to try on
/// this very disk what it promises. Paths are relative to it, without "..", and no link is followed
/// on the way, so that nothing outside is ever touched. Nothing here removes
/// anything but what could not be made to its end: that is tried, and done, through removal.h. Each
/// call says whether it could be done. Any thread.
class TrialGround {
 public:
    /// A fresh one in a folder that exists and is no link, held as long as the object lives.
    static TrialGroundResult makeIn(const std::string& folder);
    /// The one at a path, for a process that its maker has started.
    static TrialGroundResult openAt(const std::string& path);
    /// Those directly in a folder that this user's earlier runs left and that no run holds any
    /// more. One that was copied, or is a link, is none; nor is any where a disk knows no locks.
    static std::vector<std::string> leftIn(const std::string& folder);

    TrialGround(TrialGround&& other) noexcept;
    ~TrialGround();

    const std::string& path() const { return path_; }

    /// A folder with those above it, as far as they are missing.
    bool folder(std::string_view path) const;
    /// A new file, and the folders above it.
    bool file(std::string_view path, std::string_view content) const;
    /// A link to a text, and the folders above it.
    bool link(std::string_view path, const std::string& target) const;
    /// Whatever stands at `from`, to where nothing stands.
    bool move(std::string_view from, std::string_view to) const;
    bool setAccess(std::string_view folder, Access access) const;

 private:
    struct Held;
    TrialGround(std::string path, std::unique_ptr<Held> held);

    std::string path_;
    std::unique_ptr<Held> held_;
};

struct TrialGroundResult {
    std::optional<TrialGround> ground;
    std::string problem;  ///< a sentence without its end, if there is none
};

/// Has the system kill this process, as from outside and at once, when it next writes to a file.
void dieAtNextWrite();
/// The same now.
[[noreturn]] void dieNow();

}  // namespace tidewell
