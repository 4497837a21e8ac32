#pragma once

#include <string>
#include <variant>
#include <vector>

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

struct MeasureCall {
    std::vector<std::string> paths;
};
Outcome runMeasure(const Context& context, const MeasureCall& call);

struct CatalogueCall {};
Outcome runCatalogue(const Context& context, const CatalogueCall& call);

}  // namespace tidewell::cli
