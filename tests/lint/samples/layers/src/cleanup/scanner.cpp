// Only looked at, never compiled. #include <unistd.h> in a comment is none.
#include <dirent.h>       // caught
#include <sys/stat.h>     // caught
#include <linux/stat.h>   // caught
#include <unicode/ucol.h> // caught
#include <filesystem>     // caught
#include <QString>        // caught
#include <CLI/CLI.hpp>    // caught
#include "../kit/x.h"     // caught
#include <string_view>
#include "platform/files.h"

constexpr std::array folders = {
    "An end; of nothing",
    "/Library/Caches",
};
constexpr std::array more{
    Folder{"/Library/LaunchAgents"},
};
static constexpr Tool tool = {.path = "/usr/bin/xcrun"};

constexpr bool isTool(std::string_view path) {
    return path == "/usr/bin/xcrun";  // caught
}

void refused() {
    auto home = std::getenv("HOME");                // caught
    exists("/Applications");                        // caught
    const std::string tool = "/usr/bin/xcrun";      // caught
    list(host.home, "/tmp/" + name);                // caught
}

void allowed(const Host& host) {
    exists(host.systemPath("/Applications"));
    exists(host.locate("/usr/bin/xcrun"));
    exists(bundle + "/Library/Caches");
    split(path, "/");
    const auto note = "Look in /Applications.";
}
