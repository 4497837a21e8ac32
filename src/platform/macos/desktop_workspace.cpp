#include <thread>

#include "platform/process.h"
#include "platform/workspace.h"

namespace tidewell {

namespace {

/// On a thread that nobody waits for, and which owns all that it needs.
void openUnattended(std::string tool, std::vector<std::string> words) {
    std::thread([tool = std::move(tool), words = std::move(words)] {
        runTool(tool, words, ToolOutput::discard);
    }).detach();
}

}  // namespace

Workspace desktopWorkspace(const Host& host) {
    const auto opener = host.systemPath("/usr/bin/open");
    return {
        .openUrl = [opener](const std::string& url) { openUnattended(opener, {url}); },
        .reveal =
            [opener](const std::string& path) {
                if (!path.empty()) openUnattended(opener, {"-R", path});
            },
    };
}

}  // namespace tidewell
