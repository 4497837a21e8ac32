#include "apps/helper_note.h"

#include <gtest/gtest.h>

namespace tidewell::test {

namespace {

TEST(HelperNote, ExplainsHelpersByNameOrIdentifierFirstMatchWins) {
    struct Row {
        const char* name;
        std::optional<std::string> bundleID;
        std::string_view begin;  ///< of the note; empty for none
    };
    const Row rows[] = {
        {"Universe", {}, "Red Giant plugin."},
        {"Trapcode", "com.redgiant.trapcode", "Red Giant plugin."},
        {"Trapcode", {}, ""},
        {"Adobe Media Encoder", "com.redgiant.x", "Red Giant plugin."},
        {"aescripts + aeplugins", {}, "Manages After Effects"},
        {"Creative Cloud", {}, "Part of Adobe's"},
        {"Creative Cloud Uninstaller", {}, ""},
    };
    for (const auto& [name, bundleID, begin] : rows) {
        const auto note = helperNote(name, bundleID).value_or("");
        EXPECT_EQ(note.empty(), begin.empty()) << name;
        EXPECT_TRUE(note.starts_with(begin)) << name << ": " << note;
    }
}

}  // namespace

}  // namespace tidewell::test
