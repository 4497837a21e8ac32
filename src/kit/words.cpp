#include "kit/words.h"

namespace tidewell {

namespace {

constexpr Words macOSWords{
    .scanMachine = "Scan My Mac",
    .checkMachine = "Check My Mac",
    .purpose =
        "Tidewell finds and removes unnecessary files to deep clean your Mac, free up storage, and "
        "help it run faster.",
    .madeFor = "Made with care for your Mac.",
    .criticalSpace = "Critical. Your Mac's about to feel it. Clean now.",

    .junkInTwoLines = "Junk your Mac\ncan rebuild",
    .junkCaption = "Finds junk your Mac can rebuild. You choose what goes.",
    .nothingToClean = "Zero junk found. Your Mac's already tidy.",
    .allClean = "Your Mac just got lighter.",
    .failureAdvice =
        "macOS may need Full Disk Access for these. Grant it in System Settings ▸ "
        "Privacy & Security.",

    .readingApplications = "reading /Applications…",
    .appsPromise = "Deletes go to the Trash, undo anytime.",
    .noApps = "Nothing in your Applications folders but what came with macOS.",
    .askingTools = "asking simctl and tmutil…",
    .couldNotBeRead = {},
    .reveal = "Reveal in Finder",
    .notMovedAdvice = "It may need Full Disk Access or admin rights.",

    .memoryFootnote =
        "The honest way to free memory is to quit apps you're done with. macOS handles the rest.",
    .startupExplanation =
        "These launch at login or run in the background. Fewer of them means a faster startup. "
        "Reveal one to see what it is, or manage it in System Settings.",
    .openLoginSettings = "Open Login Items Settings",
    .loginSettingsUrl = "x-apple.systempreferences:com.apple.LoginItems-Settings.extension",

    .advisorStart = "Pro cleanups with Apple's own tools. No admin, nothing hidden.",
    .advisorScanning = "Checking simulators, snapshots, Docker…",
    .advisorAllClear = "No runtimes, dead simulators, snapshots, or Docker bloat to trim.",
    .advisorTools = "Runs Apple's own tools as you. No admin password, nothing hidden.",
};

constexpr Words linuxWords{
    .scanMachine = "Scan My Computer",
    .checkMachine = "Check My Computer",
    .purpose =
        "Tidewell finds and removes unnecessary files to deep clean your computer, free up "
        "storage, and help it run faster.",
    .madeFor = "Made with care for your computer.",
    .criticalSpace = "Critical. Your computer's about to feel it. Clean now.",

    .junkInTwoLines = "Junk your computer\ncan rebuild",
    .junkCaption = "Finds junk your computer can rebuild. You choose what goes.",
    .nothingToClean = "Zero junk found. Your computer's already tidy.",
    .allClean = "Your computer just got lighter.",
    .failureAdvice = "A program may still use these, or they may not be yours to remove.",

    .readingApplications = "reading your applications…",
    .appsPromise = "Yours go to the Trash; for the system's you get the command.",
    .noApps = "No packages with a menu entry, flatpaks, snaps or AppImages were found.",
    .askingTools = "asking your system's own tools…",
    .couldNotBeRead = "could not be read.",
    .reveal = "Reveal in Files",
    .notMovedAdvice = "It may be in use, or need admin rights.",

    .memoryFootnote =
        "The honest way to free memory is to quit apps you're done with. The system "
        "handles the rest.",
    .startupExplanation =
        "These launch at login or run in the background. Fewer of them means a faster startup. "
        "Reveal one to see what it is, or manage it in your desktop's settings.",
    .openLoginSettings = "",
    .loginSettingsUrl = "",

    .advisorStart = "Pro cleanups with your system's own tools. No admin, nothing hidden.",
    .advisorScanning = "Checking what your system's own tools can free…",
    .advisorAllClear = "Nothing that your system's own tools could trim.",
    .advisorTools = "Runs your system's own tools as you. What needs an admin is yours to copy.",
};

}  // namespace

const Words& wordsOf(System system) {
    switch (system) {
        case System::macOS:
            return macOSWords;
        case System::linux:
            return linuxWords;
    }
    return macOSWords;
}

}  // namespace tidewell
