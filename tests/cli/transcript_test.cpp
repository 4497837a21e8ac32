#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <regex>
#include <sstream>
#include <utility>

#include "cli/furnished_machine.h"
#include "platform/files.h"
#include "support/disk_picture.h"
#include "support/program_run.h"

// The files in transcripts/ hold calls of the program on the furnished machine, each with all that
// it says. "$ " begins a call; lines after "! " stand on standard error; "[1]" is the exit status
// and ends the call. Below "ROOT" lies the machine; figures of the disk it lies on and dates of
// today are replaced by a word. With TIDEWELL_ACCEPT_TRANSCRIPTS in the environment the test writes
// what it sees instead, to be read as a difference before it is kept.

namespace tidewell {

namespace {

/// The output with a word in the place of each figure that differs from one run to the next.
std::string withoutPassingFigures(std::string text) {
    static const std::pair<std::regex, const char*> figures[] = {
        {std::regex(R"re("(free(?!d)\w*|memory\w*)": [-+.e0-9]+)re"), R"("$1": FIGURE)"},
        {std::regex(R"re(("freeBytes": FIGURE,\s*"totalBytes": )\d+)re"), "$1FIGURE"},
        {std::regex(R"re("health": \{[^}]*\})re"), R"("health": HEALTH)"},
        {std::regex(R"re("(lastUsed|lastCleanupAt)": "20(2[5-9]|[3-9])[^"]*")re"),
         R"("$1": TODAY)"},
        {std::regex(R"re([\d.]+ .B → [\d.]+ .B free)re"), "BEFORE → AFTER free"},
        {std::regex(R"re([\d.]+ .B of [\d.]+ .B memory)re"), "USED of TOTAL memory"},
        {std::regex(R"re(Last used \d+ \w+ ago)re"), "Last used LONG ago"},
    };
    for (const auto& [figure, word] : figures) text = std::regex_replace(text, figure, word);
    return text;
}

std::string replaced(std::string text, const std::string& what, const std::string& with) {
    for (auto at = text.find(what); at != text.npos; at = text.find(what, at + with.size()))
        text.replace(at, what.size(), with);
    return text;
}

std::string told(const test::ProgramRun& run, const std::string& root) {
    auto output = withoutPassingFigures(replaced(run.output, root, "ROOT"));
    std::istringstream errors(replaced(run.errors, root, "ROOT"));
    for (std::string line; std::getline(errors, line);) output += "! " + line + "\n";
    return output + "[" + (run.status ? std::to_string(*run.status) : "signal") + "]\n";
}

/// The calls of a transcript made anew, one after the other on one machine.
std::string playedAgain(const std::string& transcript, const test::FurnishedMachine& machine) {
    std::string played;
    std::istringstream lines(transcript);
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with("$ ")) continue;
        std::vector<std::string> words = {"--root", machine.root()};
        std::istringstream call(line.substr(2));
        for (std::string word; call >> word;)
            words.push_back(replaced(word, "ROOT", machine.root()));
        played += line + "\n" + told(test::runProgram(TIDEWELL_CLI, words), machine.root());
    }
    return played;
}

}  // namespace

class Transcript : public testing::TestWithParam<const char*> {};

TEST_P(Transcript, IsWhatTheProgramSaysToTheLetter) {
    const auto file = std::string(TIDEWELL_TRANSCRIPTS) + "/" + GetParam() + ".txt";
    const auto known = readFile(file, 1 << 20).value_or("");
    const test::FurnishedMachine machine;
    const auto before = test::diskPicture(machine.root());
    const auto played = playedAgain(known, machine);
    EXPECT_EQ(played, known);
    if (std::getenv("TIDEWELL_ACCEPT_TRANSCRIPTS")) std::ofstream(file) << played;
    const bool isUntouched = test::diskPicture(machine.root()) == before;
    EXPECT_EQ(isUntouched, GetParam() != std::string("removals"));
}

INSTANTIATE_TEST_SUITE_P(CommandLine, Transcript,
                         testing::Values("documents", "texts", "wrong_calls", "removals"));

}  // namespace tidewell
