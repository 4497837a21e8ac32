#include "cli/arguments.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <utility>
#include <vector>

namespace tidewell::cli {

namespace {

/// Documents nest no deeper than readers of JSON follow.
constexpr int deepestShown = 64;
constexpr int mostShown = 20'000;

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

void addConsent(CLI::App& command, Call& call, Consent& consent) {
    command.add_flag_callback(
        "--yes", [&call, &consent] { call.consent = consent = Consent::given; },
        "Do it; without this the command only says what it would do");
}

/// The words of a choice, its usual one first, and what each stands for.
template <class Value>
using Choices = std::vector<std::pair<std::string, Value>>;

/// "{safe,all,none}"
template <class Value>
std::string choiceNames(const Choices<Value>& choices) {
    std::string names;
    for (const auto& [name, value] : choices) names += (names.empty() ? "{" : ",") + name;
    return names + "}";
}

template <class Value>
void addChoice(CLI::App& command, const std::string& option, Value& chosen,
               const Choices<Value>& choices, const std::string& description) {
    command
        .add_option(option, chosen, description + "; " + choices.front().first + " if not given")
        ->transform(CLI::Transformer(choices).description(""))
        ->type_name(choiceNames(choices));
}

void addSelection(CLI::App& command, SelectionWish& wish) {
    static const Choices<Preselection> preselections = {
        {"safe", Preselection::safe}, {"all", Preselection::all}, {"none", Preselection::none}};
    addChoice(command, "--select", wish.preselection, preselections, "What is picked");
    command.add_option("--only", wish.only, "Pick exactly this item; may be given several times")
        ->type_name("ID")
        ->allow_extra_args(false);
    command.add_option("--also", wish.also, "Pick this item too; may be given several times")
        ->type_name("ID")
        ->allow_extra_args(false);
}

void addSystem(CLI::App& app, HostOptions& host) {
    static const Choices<System> systems = {{"macos", System::macOS}, {"linux", System::linux}};
    app.add_option("--system", host.system,
                   "The system that the machine is of; seen from its folders if not given")
        ->transform(CLI::Transformer(systems).description(""))
        ->type_name(choiceNames(systems));
}

void addScanningCommands(CLI::App& app, Call& call) {
    CLI::App* command = nullptr;
    addCommand<ScanCall>(app, call, "scan", "The smart scan: Clean, Apps, Deep Scan and Advisor",
                         runScan, command);

    auto& clean = addCommand<CleanCall>(
        app, call, "clean", "Find what programs can rebuild; with --yes, delete what is picked",
        runClean, command);
    addSelection(*command, clean.selection);
    addConsent(*command, call, clean.consent);

    auto& dev = addCommand<DevCall>(
        app, call, "dev", "The same for what developer and AI tools pile up", runDev, command);
    addSelection(*command, dev.selection);
    addConsent(*command, call, dev.consent);

    addCommand<DeepScanCall>(app, call, "deep-scan", "List everything big in the home folder",
                             runDeepScan, command);

    auto& trash = addCommand<TrashCall>(app, call, "trash",
                                        "With --yes, move items of the deep scan to the Trash",
                                        runTrash, command);
    command->add_option("ids", trash.ids, "Ids from deep-scan")->required()->type_name("ID");
    addConsent(*command, call, trash.consent);

    auto& back = addCommand<PutBackCall>(
        app, call, "put-back", "List what lies in the Trash; with --yes, put back what is named",
        runPutBack, command);
    command
        ->add_option("names", back.names, "Names in the Trash, or the paths that things came from")
        ->type_name("NAME");
    addConsent(*command, call, back.consent);
}

void addAppCommands(CLI::App& app, Call& call) {
    static const Choices<SortOrder> orders = {{"least-used", SortOrder::leastUsed},
                                              {"largest", SortOrder::largest},
                                              {"name", SortOrder::name}};
    CLI::App* command = nullptr;
    auto& apps = addCommand<AppsCall>(app, call, "apps", "List the installed applications", runApps,
                                      command);
    addChoice(*command, "--sort", apps.order, orders, "How the list is ordered");

    auto& leftovers = addCommand<LeftoversCall>(app, call, "leftovers",
                                                "Say what an application would leave behind",
                                                runLeftovers, command);
    command->add_option("app", leftovers.app, "An id from apps, or a bundle's path")
        ->required()
        ->type_name("APP-ID");

    auto& uninstall = addCommand<UninstallCall>(
        app, call, "uninstall", "With --yes, move an application and its leftovers to the Trash",
        runUninstall, command);
    command->add_option("app", uninstall.app, "An id from apps, or a bundle's path")
        ->required()
        ->type_name("APP-ID");
    command->add_option("--also", uninstall.also, "Move this leftover too")->type_name("PATH");
    command->add_option("--without", uninstall.without, "Leave this leftover")->type_name("PATH");
    addConsent(*command, call, uninstall.consent);
}

void addAdvisorCommand(CLI::App& app, Call& call) {
    CLI::App* command = nullptr;
    auto& advisor = addCommand<AdvisorCall>(
        app, call, "advisor", "Cleanups with the platform's own tools", runAdvisor, command);
    command->add_option("--run", advisor.run, "Do what a finding says, by its id")->type_name("ID");
    command
        ->add_option("--delete-runtime", advisor.deleteRuntime,
                     "Delete one of the runtimes that it found")
        ->type_name("ID");
    command->add_flag("--remove-unavailable", advisor.removeUnavailable,
                      "Remove devices whose runtime is gone");
    command->add_flag("--thin-snapshots", advisor.thinSnapshots,
                      "Ask the system to purge local snapshots");
    addConsent(*command, call, advisor.consent);
}

void addPerformanceCommands(CLI::App& app, Call& call) {
    CLI::App* command = nullptr;
    addCommand<PerformanceCall>(app, call, "performance",
                                "Memory, running applications and login items", runPerformance,
                                command);

    auto& quit = addCommand<QuitCall>(app, call, "quit", "Ask a running application to quit",
                                      runQuit, command);
    command->add_option("pid", quit.pid, "Its number, from performance")
        ->required()
        ->type_name("PID");
}

void addKnowledgeCommands(CLI::App& app, Call& call) {
    CLI::App* command = nullptr;
    addCommand<StatusCall>(app, call, "status", "Free space, and what was freed so far", runStatus,
                           command);

    auto& measure = addCommand<MeasureCall>(
        app, call, "measure", "Say how much room paths take on disk", runMeasure, command);
    command->add_option("paths", measure.paths, "Files or folders")->required()->type_name("PATH");
    command->add_flag("--shared", measure.showsShared,
                      "Say also what would stay, since it has names elsewhere");

    auto& map = addCommand<MapCall>(
        app, call, "map", "Show what takes the room, and what may go, as a tree", runMap, command);
    command->add_option("path", map.path, "A folder; the home folder if not given")
        ->type_name("PATH");
    command->add_option("--depth", map.depth, "How many levels are shown; 2 if not given")
        ->check(CLI::Range(1, deepestShown))
        ->type_name("N");
    command->add_option("--top", map.top, "How many entries of a folder are shown; 10 if not given")
        ->check(CLI::Range(1, mostShown))
        ->type_name("N");

    auto& explain = addCommand<ExplainCall>(
        app, call, "explain", "Say what is known of a path, and whether Clean may remove it",
        runExplain, command);
    command->add_option("path", explain.path, "It need not exist")->required()->type_name("PATH");

    addCommand<CatalogueCall>(app, call, "catalogue", "List everything that Clean can clean",
                              runCatalogue, command);

    auto& selfcheck = addCommand<SelfcheckCall>(
        app, call, "selfcheck", "Try on this machine that nothing is lost, in a folder of its own",
        runSelfcheck, command);
    command
        ->add_option("--on", selfcheck.on,
                     "Try it in this folder, on another disk; in the one for caches if not given")
        ->type_name("DIR");
    constexpr auto notInTheHelp = "";
    command->add_option("--part", selfcheck.part)->group(notInTheHelp);
}

void addCommands(CLI::App& app, Call& call) {
    addScanningCommands(app, call);
    addAppCommands(app, call);
    addAdvisorCommand(app, call);
    addPerformanceCommands(app, call);
    addKnowledgeCommands(app, call);
}

}  // namespace

std::variant<Call, Ending> parseArguments(int count, char** words) {
    Call call;
    CLI::App app(
        "Finds what takes up room on your disk, says what it is, and removes only what you "
        "choose.",
        "tidewell-cli");
    app.add_option("--home", call.host.home, "The home folder to work on")->type_name("DIR");
    app.add_option("--root", call.host.root,
                   "The folder in which a whole machine lies; the tools in it are what is run")
        ->type_name("DIR");
    addSystem(app, call.host);
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
