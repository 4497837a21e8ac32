#include <thread>

#include "platform/path_text.h"
#include "platform/process.h"
#include "platform/workspace.h"

namespace tidewell {

namespace {

/// Runs `work`, which owns all that it needs, on a thread that nobody waits for: a desktop's tools
/// may stay as long as what they opened.
template <class Work>
void runUnattended(Work work) {
    std::thread(std::move(work)).detach();
}

class DesktopTools {
 public:
    explicit DesktopTools(const Host& host)
        : opener_(host.systemPath("/usr/bin/xdg-open")),
          messenger_(host.systemPath("/usr/bin/dbus-send")) {}

    void open(const std::string& target) const { runTool(opener_, {target}, ToolOutput::discard); }

    void reveal(const std::string& path) const {
        if (!askFileManager(path)) open(std::string(parentPath(path)));
    }

 private:
    /// A comma would end an element of the list, but a URL made from a path holds none.
    bool askFileManager(const std::string& path) const {
        const auto run = runTool(
            messenger_,
            {"--session", "--print-reply", "--type=method_call",
             "--dest=org.freedesktop.FileManager1", "/org/freedesktop/FileManager1",
             "org.freedesktop.FileManager1.ShowItems", "array:string:" + fileUrl(path), "string:"},
            ToolOutput::discard);
        return run && run->exitStatus == 0;
    }

    std::string opener_;
    std::string messenger_;
};

}  // namespace

Workspace desktopWorkspace(const Host& host) {
    const DesktopTools tools(host);
    return {
        .openUrl =
            [tools](const std::string& url) { runUnattended([tools, url] { tools.open(url); }); },
        .reveal =
            [tools](const std::string& path) {
                if (path.empty()) return;
                runUnattended([tools, path] { tools.reveal(path); });
            },
    };
}

}  // namespace tidewell
