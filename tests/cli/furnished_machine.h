#pragma once

#include <filesystem>

#include "support/sample_machine.h"
#include "support/simulator_tools.h"

namespace tidewell::test {

/// A machine with something for every command to find, and something that each must leave alone.
class FurnishedMachine : public SampleMachine {
 public:
    FurnishedMachine() {
        file("~/.npm/one", 8 * kilobyte);
        folder("~/Sync");
        std::filesystem::create_hard_link(path("~/.npm/one"), path("~/Sync/one"));
        file("~/.Trash/movie", 64 * kilobyte);
        file("~/Library/Developer/Xcode/Archives/old", 24 * kilobyte);
        file("~/Code/app/node_modules/x", 16 * kilobyte);
        file("~/Code/a\033[2J\u202Eb\n/node_modules/x", 12 * kilobyte);
        file("~/Documents/repository/precious", 20 * kilobyte);
        link("~/.m2",
             path("~/Documents"));  // the row of Maven's caches leads into what is precious
        text("~/Documents/thesis.tex", "years of work");
        file("~/Games/big/assets", 90 * megabyte);
        file("~/Downloads/Setup.dmg", 80 * megabyte);
        file("~/Movies/trip/film.mov", 85 * megabyte);
        file("~/Library/Application Support/Google/profile", 86 * megabyte);
        file("~/.colima/disk", 101 * megabyte);
        file("~/.ollama/models/blob", 501 * megabyte);

        application("/Applications/Notes.app", {{"CFBundleName", "Notes"},
                                                {"CFBundleIdentifier", "com.example.notes"},
                                                {"CFBundleShortVersionString", "2.1"}});
        lastUsed("/Applications/Notes.app", 100);
        file("~/Library/Caches/com.example.notes/Cache.db", 28 * kilobyte);
        application("/Applications/Universe.app", {{"CFBundleName", "Universe"}});
        text("~/Library/LaunchAgents/com.example.sync.plist",
             "<plist><dict><key>Label</key><string>sync</string></dict></plist>");

        tools_.runtime("a", R"({"identifier":"a","version":"17.0","build":"21A","sizeBytes":7000,
                                "platformIdentifier":"com.apple.platform.iphonesimulator",
                                "deletable":false,"state":"Ready"})");
        tools_.runtime("b", R"({"identifier":"b","version":"16.4","build":"20E","sizeBytes":5000,
                                "platformIdentifier":"com.apple.platform.iphonesimulator",
                                "deletable":true,"state":"Ready",
                                "lastUsedAt":"2024-02-03T04:05:06Z"})");
        tools_.snapshots("com.apple.TimeMachine.2024-01-01-000000.local\n");
    }

 private:
    SimulatorTools tools_{*this};
};

}  // namespace tidewell::test
