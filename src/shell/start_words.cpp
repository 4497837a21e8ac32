#include "shell/start_words.h"

#include <string_view>

#include "shell/opened_url.h"

namespace tidewell {

namespace {

constexpr std::string_view usage =
    "Usage: tidewell [--root DIR] [--home DIR] [--system {macos,linux}] [--timings] [URL]\n"
    "\n"
    "  --root DIR              Work on a machine that lies in this folder, and run the tools in "
    "it\n"
    "  --home DIR              Work on this home folder\n"
    "  --system {macos,linux}  The system of that machine; seen from its folders if not given\n"
    "  --timings               Tell on standard error what keeps the window from moving smoothly\n"
    "  --help                  Print this and end\n"
    "  URL                     tidewell://scan scans everything\n";

StartEnding wrongCall(const std::string& problem) {
    return {StartEnding::Reason::wrongCall, "tidewell: " + problem + "\n" + std::string(usage)};
}

std::optional<System> systemNamed(std::string_view name) {
    if (name == "macos") return System::macOS;
    if (name == "linux") return System::linux;
    return std::nullopt;
}

}  // namespace

std::variant<StartWish, StartEnding> parseStartWords(const std::vector<std::string>& words) {
    StartWish wish;
    for (auto word = words.begin(); word != words.end(); ++word) {
        if (*word == "--help" || *word == "-h")
            return StartEnding{StartEnding::Reason::asked, std::string(usage)};
        if (*word == "--root" || *word == "--home") {
            auto& folder = *word == "--root" ? wish.host.root : wish.host.home;
            const auto name = *word;
            if (++word == words.end()) return wrongCall(name + " needs a folder");
            folder = *word;
        } else if (*word == "--system") {
            if (++word == words.end()) return wrongCall("--system needs a name");
            wish.host.system = systemNamed(*word);
            if (!wish.host.system) return wrongCall("there is no system \"" + *word + "\"");
        } else if (*word == "--timings") {
            wish.showsTimings = true;
        } else if (urlHost(*word)) {
            wish.url = *word;
        } else {
            return wrongCall("what is \"" + *word + "\"?");
        }
    }
    return wish;
}

}  // namespace tidewell
