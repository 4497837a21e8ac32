#include "platform/reduced_motion.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "support/sample_machine.h"

namespace tidewell::test {
namespace {

TEST(ReducedMotion, IsWhatTheUserOrTheDesktopSays) {
    const SampleMachine machine;
    EXPECT_FALSE(wantsReducedMotion(machine.host())) << "there is no desktop to ask";

    const struct {
        const char* key;
        const char* answer;
        bool isReduced;
    } rows[] = {
        {"enable-animations", "boolean false", true},
        {"enable-animations", "boolean true", false},
        {"reduced-motion", "uint32 1", true},
        {"reduced-motion", "uint32 0", false},
    };
    for (const auto& [key, answer, isReduced] : rows) {
        machine.tool("/usr/bin/dbus-send", std::string("case \"$*\" in *Settings.Read*string:") +
                                               key + ") echo '   variant       variant          " +
                                               answer + "';; *) exit 1;; esac");
        EXPECT_EQ(wantsReducedMotion(machine.host()), isReduced) << key << ' ' << answer;
    }

    ::setenv("TIDEWELL_REDUCE_MOTION", "1", 1);
    EXPECT_TRUE(wantsReducedMotion(machine.host()));
    ::unsetenv("TIDEWELL_REDUCE_MOTION");
}

}  // namespace
}  // namespace tidewell::test
