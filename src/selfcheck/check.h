#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/trial_ground.h"

namespace tidewell::selfcheck {

enum class Verdict { passed, failed, notTried };

/// Whether removal may be relied on where a check was not tried.
enum class Need { essential, whereAllowed };

/// What one check found on this machine.
struct CheckResult {
    std::string name;
    std::string tried;  ///< a phrase
    Need need = Need::essential;
    Verdict verdict = Verdict::notTried;
    std::string why = {};     ///< of what failed or was not tried; a sentence without its end
    std::size_t times = 0;    ///< how often it struck
    std::size_t stoodBy = 0;  ///< how many files were to stay, and did
};

/// What a check says while it runs. The first that goes wrong stays.
class Findings {
 public:
    void strike() { ++times_; }
    void stood(std::size_t files) { stoodBy_ += files; }
    /// Something was lost, or did not happen that was promised.
    void fault(std::string what) {
        if (fault_.empty()) fault_ = std::move(what);
    }
    void notTried(std::string why) {
        if (obstacle_.empty()) obstacle_ = std::move(why);
    }
    bool isOver() const { return !fault_.empty() || !obstacle_.empty(); }

    /// Passed only if it struck at all.
    void writeTo(CheckResult& result) const;

 private:
    std::size_t times_ = 0;
    std::size_t stoodBy_ = 0;
    std::string fault_;
    std::string obstacle_;
};

/// One thing that is tried, in a folder of its name on the ground.
struct Check {
    std::string_view name;
    std::string_view tried;
    Need need;
    void (*run)(const TrialGround& ground, Findings& findings);
};

}  // namespace tidewell::selfcheck
