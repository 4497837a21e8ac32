// make-sample-machine [--system macos|linux] DIR: lays out a whole machine of that system in a new
// folder, with something for every tool to find, and traps for each rule about what must stay.
// 4 or 5 GB of made-up files, most of them without content.

#include <exception>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>

#include "support/linux_desktop.h"
#include "support/sample_machine.h"

namespace {

using tidewell::ByteCount;
using tidewell::System;
using tidewell::test::kilobyte;
using tidewell::test::megabyte;
using tidewell::test::SampleMachine;

struct SampleFile {
    const char* path;
    ByteCount size;
};

/// Caches at places that are known in advance.
constexpr SampleFile caches[] = {
    {"~/Library/Developer/Xcode/DerivedData/Tides-abc/Build/tides.o", 180 * megabyte},
    {"~/Library/Developer/Xcode/iOS DeviceSupport/17.5/Symbols/dyld", 95 * megabyte},
    {"~/Library/Developer/Xcode/Archives/2026-03-01/Tides.xcarchive/app", 40 * megabyte},
    {"~/Library/Developer/CoreSimulator/Caches/dyld/cache", 22 * megabyte},
    {"~/.npm/_cacache/content-v2/sha512/aa/one", 61 * megabyte},
    {"~/.gradle/caches/modules-2/files/kotlin.jar", 44 * megabyte},
    {"~/.gradle/wrapper/dists/gradle-8.5/gradle.zip", 12 * megabyte},
    {"~/.cargo/registry/cache/index/serde.crate", 9 * megabyte},
    {"~/.cargo/git/db/tokio/pack", 14 * megabyte},
    {"~/Library/Caches/CocoaPods/Pods/Release/one", 8 * megabyte},
    {"~/Library/Caches/Homebrew/downloads/wget.tar.gz", 31 * megabyte},
    {"~/Library/Caches/Google/Chrome/Default/Cache/data_0", 120 * megabyte},
    {"~/Library/Caches/com.apple.Safari/Cache.db", 18 * megabyte},
    {"~/Library/Caches/com.spotify.client/Data/a", 77 * megabyte},
    {"~/Library/Application Support/Slack/Cache/data_1", 26 * megabyte},
    {"~/Library/Application Support/Code/CachedData/one", 33 * megabyte},
    {"~/Library/Application Support/Claude/vm_bundles/image", 150 * megabyte},
    {"~/Library/Application Support/MobileSync/Backup/00008/Manifest.db", 110 * megabyte},
    {"~/Library/Containers/com.apple.mail/Data/Library/Mail Downloads/a.pdf", 3 * megabyte},
    {"~/Library/Logs/DiagnosticReports/crash.ips", 2 * megabyte},
    {"~/Library/Saved Application State/com.example.notes.savedState/data", 400 * kilobyte},
    {"~/.Trash/old-movie.mov", 52 * megabyte},
    {"/var/folders/zz/ada/T/com.example.notes/scratch", 6 * megabyte},
    {"/var/folders/zz/ada/C/com.example.notes/index", 5 * megabyte},
};

/// What lies in the two swept folders: unclaimed, claimed by a row of its own, and never swept.
constexpr SampleFile sweptFolders[] = {
    {"~/.cache/pip/http/one", 7 * megabyte},
    {"~/.cache/typescript/5.4/lib.d.ts", 2 * megabyte},
    {"~/.cache/huggingface/hub/models--tiny/blob", 90 * megabyte},
    {"~/.cache/huggingface/token", 4 * kilobyte},
    {"~/.cache/torch/hub/checkpoints/resnet.pth", 45 * megabyte},
    {"~/Library/Caches/com.example.notes/Cache.db", 11 * megabyte},
    {"~/Library/Caches/com.example.maps/tiles", 25 * megabyte},
    {"~/Library/Caches/Google/DriveFS/metadata", 5 * megabyte},
    {"~/Library/Caches/CloudKit/records.db", 3 * megabyte},
    {"~/Library/Caches/FamilyCircle/state", 64 * kilobyte},
};

/// Software projects with artifacts at several depths.
constexpr SampleFile projects[] = {
    {"~/Code/webapp/package.json", 4 * kilobyte},
    {"~/Code/webapp/src/index.ts", 12 * kilobyte},
    {"~/Code/webapp/node_modules/left-pad/index.js", 48 * megabyte},
    {"~/Code/webapp/node_modules/x/node_modules/y/index.js", 4 * megabyte},
    {"~/Code/webapp/.next/cache/webpack", 19 * megabyte},
    {"~/Code/ios/App.xcodeproj/project.pbxproj", 40 * kilobyte},
    {"~/Code/ios/build/Release/App", 36 * megabyte},
    {"~/Code/ios/Pods/Alamofire/Source", 9 * megabyte},
    {"~/Code/engine/Cargo.toml", 4 * kilobyte},
    {"~/Code/engine/target/debug/engine", 85 * megabyte},
    {"~/Code/lab/a/b/c/d/.venv/bin/python", 16 * megabyte},
    {"~/Code/lab/a/b/c/d/e/f/venv/bin/python", 16 * megabyte},
    {"~/Documents/app/Makefile", 4 * kilobyte},
    {"~/Documents/app/build/app", 3 * megabyte},
    {"~/Documents/build/my only novel.txt", 1 * megabyte},
    {"~/.venv/bin/python", 10 * megabyte},
};

/// The user's own, which no tool may lose.
constexpr SampleFile personal[] = {
    {"~/Documents/Thesis/thesis.tex", 2 * megabyte},
    {"~/Documents/Video Archive/summer.mov", 260 * megabyte},
    {"~/Pictures/Photos Library.photoslibrary/originals/1.heic", 96 * megabyte},
    {"~/Movies/birthday.mov", 130 * megabyte},
    {"~/.ssh/id_ed25519", 4 * kilobyte},
    {"~/.gradle/gradle.properties", 4 * kilobyte},
    {"~/.cargo/credentials.toml", 4 * kilobyte},
    {"~/.cargo/bin/ripgrep", 5 * megabyte},
};

/// Big folders that no cleaning rule knows about.
constexpr SampleFile bigFolders[] = {
    {"~/Library/Application Support/Google/Chrome/Default/History", 88 * megabyte},
    {"~/Library/Group Containers/group.com.apple.notes/NoteStore.sqlite", 84 * megabyte},
    {"~/Library/Containers/com.apple.mediaanalysisd/Data/model", 92 * megabyte},
    {"~/Library/Group Containers/group.com.apple.replicatord/stage", 82 * megabyte},
    {"~/Library/Containers/com.docker.docker/Data/vms/0/data/Docker.raw", 240 * megabyte},
    {"~/.colima/default/disk.img", 105 * megabyte},
    {"~/Downloads/node_modules/big/index.js", 83 * megabyte},
    {"~/Games/Tetris/assets.pak", 101 * megabyte},
    {"~/.ollama/models/blobs/sha256-tiny", 510 * megabyte},
};

struct SampleInstaller {
    const char* path;
    ByteCount size;
    int days;
};

constexpr SampleInstaller installers[] = {
    {"~/Downloads/Figma.dmg", 90 * megabyte, 0},
    {"~/Downloads/old/Firefox 120.dmg", 12 * megabyte, 45},
    {"~/Downloads/Xcode tools.pkg", 30 * megabyte, 400},
    {"~/Desktop/debian.iso", 64 * megabyte, 3},
    {"~/Downloads/tiny.dmg", 2 * megabyte, 10},
};

struct SampleApplication {
    const char* path;
    const char* name;
    const char* identifier;
    ByteCount size;
    int lastUsedDays;  ///< -1 for no date
};

constexpr SampleApplication applications[] = {
    {"/Applications/Notes Plus.app", "Notes Plus", "com.example.notes", 34 * megabyte, 2},
    {"/Applications/Maps Deluxe.app", "Maps Deluxe", "com.example.maps", 61 * megabyte, 140},
    {"/Applications/Utilities/Disk Gauge.app", "Disk Gauge", "com.example.gauge", 8 * megabyte, 95},
    {"/Applications/Suite/Painter.app", "Painter", "com.example.painter", 47 * megabyte, -1},
    {"/Applications/Universe Tools.app", "Universe Tools", "com.example.universe", 5 * megabyte,
     300},
    {"/Applications/Mail.app", "Mail", "com.apple.mail", 15 * megabyte, 1},
    {"/Applications/Docker.app", "Docker", "com.docker.docker", 20 * megabyte, 12},
    {"/Applications/Ollama.app", "Ollama", "com.ollama.ollama", 18 * megabyte, 20},
    {"~/Applications/Sketchbook.app", "Sketchbook", "com.example.sketchbook", 12 * megabyte, 31},
};

/// What applications leave in the user's Library.
constexpr SampleFile leftovers[] = {
    {"~/Library/Preferences/com.example.notes.plist", 4 * kilobyte},
    {"~/Library/Containers/com.example.notes/Data/notes.db", 9 * megabyte},
    {"~/Library/Application Support/com.example.notes/themes", 2 * megabyte},
    {"~/Library/Application Support/Notes Plus/plugins", 1 * megabyte},
    {"~/Library/Group Containers/AB12CD.com.example.notes/shared.db", 3 * megabyte},
    {"~/Library/Logs/Notes Plus/app.log", 200 * kilobyte},
    {"~/Library/HTTPStorages/com.example.maps/cookies", 64 * kilobyte},
};

struct SampleLaunchItem {
    const char* path;
    const char* label;
    const char* program;
};

constexpr SampleLaunchItem launchItems[] = {
    {"~/Library/LaunchAgents/com.example.notes.helper.plist", "com.example.notes.helper",
     "/Applications/Notes Plus.app/Contents/MacOS/helper"},
    {"~/Library/LaunchAgents/com.example.gauge.plist", "com.example.gauge",
     "/Applications/Utilities/Disk Gauge.app/Contents/MacOS/Disk Gauge"},
    {"/Library/LaunchAgents/com.example.updater.plist", "com.example.updater",
     "/Library/Updater/updater"},
    {"/Library/LaunchDaemons/com.docker.vmnetd.plist", "com.docker.vmnetd",
     "/Library/PrivilegedHelperTools/com.docker.vmnetd"},
};

template <std::size_t count>
void addFiles(const SampleMachine& machine, const SampleFile (&files)[count]) {
    for (const auto& file : files) machine.file(file.path, file.size);
}

void addInstallers(const SampleMachine& machine) {
    for (const auto& installer : installers) {
        machine.file(installer.path, installer.size);
        machine.age(installer.path, installer.days);
    }
}

void addApplications(const SampleMachine& machine) {
    for (const auto& application : applications) {
        machine.application(application.path,
                            {{"CFBundleName", application.name},
                             {"CFBundleIdentifier", application.identifier},
                             {"CFBundleShortVersionString", "2.4.1"}},
                            application.size);
        if (application.lastUsedDays >= 0)
            machine.lastUsed(application.path, application.lastUsedDays);
    }
}

void addLaunchItems(const SampleMachine& machine) {
    for (const auto& item : launchItems)
        machine.text(item.path,
                     std::string("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                 "<plist version=\"1.0\"><dict>\n<key>Label</key><string>") +
                         item.label + "</string>\n<key>Program</key><string>" + item.program +
                         "</string>\n</dict></plist>\n");
}

/// Links in all the places where following one would lose something, and names that are no text.
void addTraps(const SampleMachine& machine) {
    machine.link("~/Code/shortcut", machine.path("~/Documents/Thesis"));
    machine.link("~/Code/webapp/node_modules/.bin", machine.path("~/Documents"));
    machine.link("~/Library/Caches/com.example.linked", machine.path("~/Pictures"));
    machine.link("~/.cache/home", machine.home());
    machine.link("~/.cache/nowhere", "/does/not/exist");
    machine.link("~/.yarn", machine.path("~/Documents/Thesis"));
    machine.file("~/Library/Caches/com.example.odd\nname/data", 2 * megabyte);
    machine.file("~/Library/Caches/com.example.\xff\xfe/data", 1 * megabyte);
    machine.file("~/Library/Caches/\xd0\xba\xd1\x8d\xd1\x88 \xf0\x9f\x8c\x8a/data", 1 * megabyte);
    machine.folder("~/Library/Caches/com.example.empty/only/folders");
}

/// Stand-ins for the platform's own tools. Each keeps its state in a folder beside it, so that a
/// deletion changes what it lists next.
void addTools(const SampleMachine& machine) {
    machine.text("/usr/share/simulators/ios-17-5.json",
                 R"("ios-17-5": {"identifier": "ios-17-5", "name": "iOS 17.5",
 "runtimeIdentifier": "com.apple.CoreSimulator.SimRuntime.iOS-17-5", "build": "21F79",
 "sizeBytes": 7340032000, "deletable": true, "lastUsedAt": "2026-08-02T10:20:30.5Z"})");
    machine.text("/usr/share/simulators/ios-16-4.json",
                 R"("ios-16-4": {"identifier": "ios-16-4",
 "runtimeIdentifier": "com.apple.CoreSimulator.SimRuntime.iOS-16-4", "build": "20E247",
 "sizeBytes": 6112000000, "deletable": true, "lastUsedAt": "2025-11-20T08:00:00Z"})");
    machine.text("/usr/share/simulators/watchos-10-2.json",
                 R"("watchos-10-2": {"identifier": "watchos-10-2",
 "runtimeIdentifier": "com.apple.CoreSimulator.SimRuntime.watchOS-10-2", "build": "21S364",
 "sizeBytes": 3900000000, "deletable": false})");
    machine.text("/usr/share/simulators/unavailable",
                 R"({"name": "Old iPhone 8", "isAvailable": false},
 {"name": "Old iPad", "isAvailable": false})");
    machine.text("/usr/share/snapshots/list",
                 "com.apple.TimeMachine.2026-11-20-101010.local\n"
                 "com.apple.TimeMachine.2026-11-21-101010.local\n"
                 "com.apple.TimeMachine.2026-11-22-101010.local\n");
    machine.tool("/usr/bin/xcrun", R"(state=$(dirname "$0")/../share/simulators
case "$2 $3" in
"runtime list")
    separator='{'
    for record in "$state"/*.json; do
        [ -e "$record" ] || { printf '{'; break; }
        printf '%s' "$separator"; cat "$record"; separator=', '
    done
    printf '}\n' ;;
"runtime delete") rm "$state/$4.json" 2>/dev/null ;;
"list devices")
    printf '{"devices": {"com.apple.CoreSimulator.SimRuntime.iOS-17-5": [
 {"name": "iPhone 15", "isAvailable": true}, {"name": "iPhone 15 Pro", "isAvailable": true},
 {"name": "iPhone SE", "isAvailable": true}, {"name": "iPad Air", "isAvailable": true}],
 "com.apple.CoreSimulator.SimRuntime.iOS-12-0": ['
    [ -e "$state/unavailable" ] && cat "$state/unavailable"
    printf ']}}\n' ;;
"delete unavailable") rm -f "$state/unavailable" ;;
*) exit 64 ;;
esac
)");
    machine.tool("/usr/bin/tmutil", R"(list=$(dirname "$0")/../share/snapshots/list
case "$1" in
listlocalsnapshots) echo 'Snapshots for disk /:'; cat "$list" 2>/dev/null; exit 0 ;;
thinlocalsnapshots) rm -f "$list" ;;
*) exit 64 ;;
esac
)");
    machine.tool("/bin/launchctl", R"(echo "$@" >> "$(dirname "$0")/../var/log/launchctl.log")");
    machine.folder("/var/log");
    machine.text("~/Library/Application Support/com.apple.TCC/TCC.db", "");
}

void furnishMac(const SampleMachine& machine) {
    addFiles(machine, caches);
    addFiles(machine, sweptFolders);
    addFiles(machine, projects);
    addFiles(machine, personal);
    addFiles(machine, bigFolders);
    addFiles(machine, leftovers);
    addInstallers(machine);
    addApplications(machine);
    addLaunchItems(machine);
    addTraps(machine);
    addTools(machine);
}

struct Call {
    System system = System::macOS;
    std::string folder;
};

std::optional<Call> readCall(int count, char** words) {
    Call call;
    int next = 1;
    if (count == 4 && words[1] == std::string_view("--system")) {
        const std::string_view name = words[2];
        if (name != "macos" && name != "linux") return std::nullopt;
        call.system = name == "linux" ? System::linux : System::macOS;
        next = 3;
    }
    if (count != next + 1 || words[next][0] == '-') return std::nullopt;
    call.folder = words[next];
    return call;
}

void layOut(const Call& call) {
    const SampleMachine machine(call.folder, call.system);
    switch (call.system) {
        case System::macOS:
            furnishMac(machine);
            break;
        case System::linux:
            furnishLinuxDesktop(machine);
            break;
    }
}

}  // namespace

int main(int count, char** words) {
    const auto call = readCall(count, words);
    if (!call) {
        std::cerr << "usage: make-sample-machine [--system macos|linux] DIR\n";
        return 2;
    }
    try {
        layOut(*call);
    } catch (const std::exception& problem) {
        std::cerr << "make-sample-machine: " << problem.what() << '\n';
        return 1;
    }
    return 0;
}
