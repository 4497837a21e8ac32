#include "cli/arguments.h"

#include <CLI/CLI.hpp>
#include <map>
#include <memory>

namespace tidewell::cli {

namespace {

/// Adds a command whose call is filled in by its options and run as given.
template <class CommandCall>
CommandCall& addCommand(CLI::App& app, Call& call, const std::string& name,
                        const std::string& description,
                        Outcome (*run)(const Context&, const CommandCall&), CLI::App*& command) {
    auto commandCall = std::make_shared<CommandCall>();
    command = app.add_subcommand(name, description);
    command->fallthrough();
    command->callback([&call, commandCall, run] {
        call.run = [commandCall, run](const Context& context) {
            return run(context, *commandCall);
        };
    });
    return *commandCall;
}

void addConsent(CLI::App& command, Consent& consent) {
    command.add_flag_callback(
        "--yes", [&consent] { consent = Consent::given; },
        "Do it; without this the command only says what it would do");
}

void addSelection(CLI::App& command, SelectionWish& wish) {
    static const std::map<std::string, Preselection> preselections = {
        {"safe", Preselection::safe}, {"all", Preselection::all}, {"none", Preselection::none}};
    command
        .add_option("--select", wish.preselection, "What is picked: safe (default), all or none")
        ->transform(CLI::Transformer(preselections))
        ->type_name("WHAT");
    command.add_option("--only", wish.only, "Pick exactly this item; may be given several times")
        ->type_name("ID")
        ->allow_extra_args(false);
    command.add_option("--also", wish.also, "Pick this item too; may be given several times")
        ->type_name("ID")
        ->allow_extra_args(false);
}

void addCommands(CLI::App& app, Call& call) {
    CLI::App* command = nullptr;
    auto& clean = addCommand<CleanCall>(
        app, call, "clean", "Find what programs can rebuild; with --yes, delete what is picked",
        runClean, command);
    addSelection(*command, clean.selection);
    addConsent(*command, clean.consent);

    auto& measure = addCommand<MeasureCall>(
        app, call, "measure", "Say how much room paths take on disk", runMeasure, command);
    command->add_option("paths", measure.paths, "Files or folders")->required()->type_name("PATH");

    addCommand<CatalogueCall>(app, call, "catalogue",
                              "List everything that Clean knows how to clean", runCatalogue,
                              command);
}

}  // namespace

std::variant<Call, Ending> parseArguments(int count, char** words) {
    Call call;
    CLI::App app(
        "Finds what takes up room on your disk, says what it is, and removes only what you "
        "choose.",
        "tidewell-cli");
    app.add_option("--home", call.host.home, "The home folder to work on")->type_name("DIR");
    app.add_option("--root", call.host.root, "The folder in which a whole machine lies")
        ->type_name("DIR");
    app.add_flag_callback(
        "--json", [&call] { call.form = OutputForm::json; }, "Print one JSON document");
    app.set_version_flag("--version", TIDEWELL_VERSION);
    app.require_subcommand(1);
    addCommands(app, call);
    try {
        app.parse(count, words);
    } catch (const CLI::CallForHelp&) {
        return Ending{ExitStatus::done, app.help()};
    } catch (const CLI::CallForVersion&) {
        return Ending{ExitStatus::done, std::string("tidewell-cli ") + TIDEWELL_VERSION + "\n"};
    } catch (const CLI::ParseError& error) {
        return Ending{ExitStatus::wrongCall, std::string("tidewell-cli: ") + error.what() +
                                                 "\nTry tidewell-cli --help.\n"};
    }
    return call;
}

}  // namespace tidewell::cli
