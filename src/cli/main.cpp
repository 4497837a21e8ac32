#include <exception>
#include <iostream>

#include "async/failure.h"
#include "cli/arguments.h"
#include "cli/context.h"
#include "kit/left_out.h"
#include "platform/silent_mounts.h"
#include "platform/terminal.h"
#include "platform/termination.h"
#include "platform/text.h"

namespace tidewell::cli {

namespace {

/// A call that did its work but could not say so has not told what was done.
int end(ExitStatus status) {
    const bool wasTold = static_cast<bool>(std::cout.flush());
    if (!wasTold) std::cerr << "tidewell-cli: The output could not be written to its end.\n";
    const bool isSilent = !wasTold && status == ExitStatus::done;
    return static_cast<int>(isSilent ? ExitStatus::internalError : status);
}

int endWrongCall(const std::string& problem) {
    std::cerr << "tidewell-cli: " << problem << '\n';
    return end(ExitStatus::wrongCall);
}

void tellOfSilentMounts() {
    if (const auto note = silentMountsNote(knownSilentMounts()))
        std::cerr << "tidewell-cli: " << terminalText(*note) << '\n';
}

int run(const Call& call) {
    auto found = findHost(call.host);
    if (!found.host) return endWrongCall(found.problem);
    if (call.consent == Consent::given && found.host->homeOwner == HomeOwner::somebodyElse)
        return endWrongCall(found.host->home + " is another user's: it can only be looked at");
    if (call.consent == Consent::given && found.host->removals == Removals::locked) {
        std::cerr << "tidewell-cli: Nothing is removed or moved on this system until it has been "
                     "tried here: run tidewell-cli selfcheck\n";
        return end(ExitStatus::leftBehind);
    }
    RunLoop loop;
    const auto outcome = call.run({std::move(*found.host), call.form, loop});
    tellOfSilentMounts();
    if (const auto* wrong = std::get_if<WrongCall>(&outcome)) return endWrongCall(wrong->problem);
    return end(std::get<ExitStatus>(outcome));
}

int runWords(int count, char** words) {
    const auto parsed = parseArguments(count, words);
    if (const auto* call = std::get_if<Call>(&parsed)) return run(*call);
    const auto& ending = std::get<Ending>(parsed);
    (ending.status == ExitStatus::done ? std::cout : std::cerr) << ending.text;
    return end(ending.status);
}

}  // namespace

}  // namespace tidewell::cli

int main(int count, char** words) {
    tidewell::keepStandardStreamsApart();
    tidewell::outliveForbiddenWrites();
    try {
        return tidewell::cli::runWords(count, words);
    } catch (...) {
        std::cerr << "tidewell-cli: something went wrong inside the program: "
                  << tidewell::failureText(std::current_exception()) << '\n';
        return static_cast<int>(tidewell::cli::ExitStatus::internalError);
    }
}
