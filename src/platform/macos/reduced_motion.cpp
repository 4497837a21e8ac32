#include "platform/reduced_motion.h"

#include "platform/environment.h"
#include "platform/process.h"

namespace tidewell {

bool wantsReducedMotion(const Host& host) {
    const auto wish = environmentValue("TIDEWELL_REDUCE_MOTION");
    if (!wish.empty()) return wish == "1";
    const auto run =
        runTool(host.systemPath("/usr/bin/defaults"),
                {"read", "com.apple.universalaccess", "reduceMotion"}, ToolOutput::keep);
    return run && run->exitStatus == 0 && run->output == "1\n";
}

}  // namespace tidewell
