#pragma once

#include <string>
#include <string_view>

#include "support/sample_machine.h"

namespace tidewell::test {

/// The simulator and snapshot tools of a sample machine. They keep what they list in files, so that
/// what they delete is missing from their next list; words that they do not know fail.
class SimulatorTools {
 public:
    explicit SimulatorTools(const SampleMachine& machine) : machine_(machine) {
        machine.folder("/state/runtimes");
        devices(R"({"devices":{}})");
        machine.text("/state/available.json", R"({"devices":{}})");
        machine.text("/state/snapshots", "");
        machine.tool("/usr/bin/xcrun", R"sh(
state="${0%/usr/bin/xcrun}/state"
case "$*" in
"simctl runtime list -j")
    separator='{'
    for record in "$state"/runtimes/*; do
        [ -e "$record" ] || continue
        printf '%s"%s":' "$separator" "${record##*/}"
        cat "$record"
        separator=','
    done
    [ "$separator" = ',' ] || printf '{'
    printf '}' ;;
"simctl list devices -j") cat "$state/devices.json" ;;
"simctl runtime delete "*) exec rm "$state/runtimes/$4" ;;
"simctl delete unavailable") exec mv "$state/available.json" "$state/devices.json" ;;
*) exit 64 ;;
esac
)sh");
        machine.tool("/usr/bin/tmutil", R"sh(
state="${0%/usr/bin/tmutil}/state"
case "$*" in
"listlocalsnapshots /") exec cat "$state/snapshots" ;;
"thinlocalsnapshots / 999999999999 4") : > "$state/snapshots" ;;
*) exit 64 ;;
esac
)sh");
    }

    /// A runtime that stands in the list under `key`.
    void runtime(std::string_view key, std::string_view record) const {
        machine_.text("/state/runtimes/" + std::string(key), record);
    }
    void devices(std::string_view json) const { machine_.text("/state/devices.json", json); }
    void snapshots(std::string_view lines) const { machine_.text("/state/snapshots", lines); }

 private:
    const SampleMachine& machine_;
};

}  // namespace tidewell::test
