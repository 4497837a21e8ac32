#pragma once

#include <string_view>

#include "platform/system.h"

namespace tidewell {

/// What is said differently on each system: the texts that name the machine, whoever made it, its
/// file manager or its settings. Every other text is the same on all and stands where it is shown.
struct Words {
    std::string_view scanMachine;  ///< on the button that starts a scan
    std::string_view checkMachine;
    std::string_view purpose;  ///< what the program is for
    std::string_view madeFor;
    std::string_view criticalSpace;

    std::string_view junkInTwoLines;
    std::string_view junkCaption;
    std::string_view nothingToClean;
    std::string_view allClean;
    std::string_view failureAdvice;  ///< behind the titles of what could not be cleaned

    std::string_view readingApplications;
    std::string_view appsPromise;  ///< what becomes of an application that is uninstalled
    std::string_view noApps;       ///< where none is installed that could be uninstalled
    std::string_view askingTools;
    std::string_view couldNotBeRead;  ///< behind a number of folders; empty where it is not said
    std::string_view reveal;          ///< shows an entry in the file manager
    std::string_view notMovedAdvice;

    std::string_view memoryFootnote;
    std::string_view startupExplanation;
    std::string_view openLoginSettings;  ///< empty where there is no one place for them
    std::string_view loginSettingsUrl;   ///< likewise

    std::string_view advisorStart;
    std::string_view advisorScanning;
    std::string_view advisorAllClear;
    std::string_view advisorTools;
};

const Words& wordsOf(System system);

}  // namespace tidewell
