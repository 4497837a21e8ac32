#include "support/program_run.h"

#include "platform/files.h"
#include "platform/process.h"
#include "support/temporary_folder.h"

namespace tidewell::test {

ProgramRun runProgram(const std::string& path, const std::vector<std::string>& arguments) {
    const TemporaryFolder folder;
    const auto errors = folder.path() + "/errors";
    std::vector<std::string> words = {"-c", "errors=$1; shift; exec \"$@\" 2>\"$errors\"", "sh",
                                      errors, path};
    words.insert(words.end(), arguments.begin(), arguments.end());
    const auto run = runTool("/bin/sh", words, ToolOutput::keep);
    if (!run) return {};
    return {.status = run->exitStatus,
            .output = run->output,
            .errors = readFile(errors, 1 << 20).value_or("")};
}

}  // namespace tidewell::test
