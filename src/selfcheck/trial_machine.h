#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "deepscan/big_item.h"
#include "platform/host.h"
#include "platform/removal.h"
#include "platform/trial_ground.h"
#include "selfcheck/check.h"

namespace tidewell::selfcheck {

/// A machine of this system in a folder of the ground, with a home folder, and a record of what in
/// it must not be lost. Paths are relative to the home folder.
class TrialMachine {
 public:
    /// What cannot be laid out is said in the findings, as an obstacle.
    TrialMachine(const TrialGround& ground, std::string_view name, Findings& findings);
    /// The one that another process has laid out.
    static Host hostOn(const TrialGround& ground, std::string_view name);

    /// Where the machine has a path, on the ground.
    static std::string onGround(std::string_view name, std::string_view inHome);

    /// As if the environment named a folder as the user's scratch folder.
    void takeForScratch(std::string_view folder) { host_.temporaryDirectory = path(folder); }

    const Host& host() const { return host_; }
    std::string path(std::string_view inHome) const;
    /// Of an absolute path that lies in the home folder.
    std::string relative(std::string_view path) const;

    void folder(std::string_view path);
    /// A file that may go.
    void file(std::string_view path);
    /// One that must stay: there, or, after `move`, where that put it.
    void treasure(std::string_view path);
    void link(std::string_view path, std::string_view target);
    /// False if it cannot be moved; so for what is gone by then.
    bool move(const std::string& from, const std::string& to);
    /// Puts a link in the place of a folder, which is moved aside.
    bool swap(const std::string& folder, std::string_view target);
    bool setAccess(std::string_view folder, Access access);
    /// What the engine moved a treasure to.
    void follow(const std::string& from, const std::string& to);

    /// Looks where each treasure lies that may have been moved to the Trash or back. How many lie
    /// in the Trash.
    std::size_t findTrashed();

    /// Counts what must stay, and says what of it is gone or changed; `mayGo` of it may.
    void account(std::string_view after, std::size_t mayGo = 0);
    bool isEmpty(std::string_view folder) const;

    /// Empties a folder as Clean does. `strike` is called with the name of each entry between the
    /// answer of the guard and its removal. Absent if the guard refuses the folder.
    using Strike = std::function<void(const std::string& name)>;
    std::optional<Removal> empty(std::string_view folder, const Strike& strike = nullptr) const;
    /// Removes a single entry as Clean does, with a strike behind the answer of the guard.
    std::optional<Removal> removeSingle(std::string_view path,
                                        const std::function<void()>& strike = nullptr) const;
    /// Moves to the Trash as the deep scan does, with a strike behind the answer of the guard.
    Trashing trash(std::string_view path, const std::function<void()>& strike = nullptr) const;

 private:
    struct Treasure {
        std::string path;
        std::string content;
        std::string origin = path;  ///< where it was laid
    };

    std::string onGround(std::string_view inHome) const { return onGround(name_, inHome); }
    void require(bool isDone, std::string_view what);

    const TrialGround& ground_;
    std::string name_;
    Host host_;
    std::vector<Treasure> treasures_;
    int swaps_ = 0;
    Findings& findings_;
};

}  // namespace tidewell::selfcheck
