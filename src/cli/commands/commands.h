#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "apps/app_order.h"
#include "cli/context.h"
#include "cli/selection.h"

namespace tidewell::cli {

// One function a command. Each prints its whole answer, or nothing at all when the call turns out
// to be wrong.

using Outcome = std::variant<ExitStatus, WrongCall>;

/// Whether a removing command does what it would do.
enum class Consent { notGiven, given };

struct CleanCall {
    SelectionWish selection;
    Consent consent = Consent::notGiven;
};
Outcome runClean(const Context& context, const CleanCall& call);

struct DevCall {
    SelectionWish selection;
    Consent consent = Consent::notGiven;
};
Outcome runDev(const Context& context, const DevCall& call);

struct ScanCall {};
Outcome runScan(const Context& context, const ScanCall& call);

struct DeepScanCall {};
Outcome runDeepScan(const Context& context, const DeepScanCall& call);

struct TrashCall {
    std::vector<std::string> ids;
    Consent consent = Consent::notGiven;
};
Outcome runTrash(const Context& context, const TrashCall& call);

struct PutBackCall {
    std::vector<std::string> names;  ///< lists what there is if none is given
    Consent consent = Consent::notGiven;
};
Outcome runPutBack(const Context& context, const PutBackCall& call);

struct AppsCall {
    SortOrder order = SortOrder::leastUsed;
};
Outcome runApps(const Context& context, const AppsCall& call);

struct LeftoversCall {
    std::string app;  ///< its id, or its bundle's path
};
Outcome runLeftovers(const Context& context, const LeftoversCall& call);

struct UninstallCall {
    std::string app;
    std::vector<std::string> also = {};     ///< leftovers' paths that are to go too
    std::vector<std::string> without = {};  ///< leftovers' paths that are to stay
    Consent consent = Consent::notGiven;
};
Outcome runUninstall(const Context& context, const UninstallCall& call);

struct AdvisorCall {
    std::optional<std::string> run;  ///< a finding's id
    std::optional<std::string> deleteRuntime;
    bool removeUnavailable = false;
    bool thinSnapshots = false;
    Consent consent = Consent::notGiven;
};
Outcome runAdvisor(const Context& context, const AdvisorCall& call);

struct PerformanceCall {};
Outcome runPerformance(const Context& context, const PerformanceCall& call);

struct QuitCall {
    std::int32_t pid = 0;
};
Outcome runQuit(const Context& context, const QuitCall& call);

struct ExplainCall {
    std::string path;
};
Outcome runExplain(const Context& context, const ExplainCall& call);

struct MapCall {
    std::optional<std::string> path;  ///< the home folder if not given
    int depth = 2;                    ///< levels shown below it
    int top = 10;                     ///< entries shown of a folder
};
Outcome runMap(const Context& context, const MapCall& call);

struct StatusCall {};
Outcome runStatus(const Context& context, const StatusCall& call);

struct MeasureCall {
    std::vector<std::string> paths;
    bool showsShared = false;
};
Outcome runMeasure(const Context& context, const MeasureCall& call);

struct CatalogueCall {};
Outcome runCatalogue(const Context& context, const CatalogueCall& call);

struct SelfcheckCall {
    std::optional<std::string> on;    ///< a folder of the disk to try; the caches' if not given
    std::optional<std::string> part;  ///< what this process is to play, as a child of the command
};
Outcome runSelfcheck(const Context& context, const SelfcheckCall& call);

}  // namespace tidewell::cli
