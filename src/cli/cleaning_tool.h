#pragma once

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <variant>

#include "async/observable.h"
#include "cleanup/screens/scan_content.h"
#include "cli/context.h"
#include "cli/interruption.h"
#include "cli/progress_line.h"
#include "cli/selection.h"

namespace tidewell::cli {

// What `clean` and `dev` do alike with their view models.

/// Ticks exactly what the call wishes for.
template <class Model>
std::optional<WrongCall> tickAsWished(Model& model, const SelectionWish& wish) {
    const auto wanted = selectedIds(model.items(), wish);
    if (const auto* wrong = std::get_if<WrongCall>(&wanted)) return *wrong;
    const auto& ids = std::get<std::set<std::string>>(wanted);
    setTicks(model.items.mutate(), Tick::off, everyItem);
    setTicks(model.items.mutate(), Tick::on,
             [&ids](const auto& item) { return ids.contains(item.target.id); });
    return std::nullopt;
}

/// Cleans what is ticked; a first Ctrl-C ends it behind the item in hand.
template <class Model>
ExitStatus cleanTicked(const Context& context, const std::shared_ptr<Model>& model,
                       Task<> (Model::*clean)()) {
    const InterruptionWatch watch;
    ProgressLine progress;
    const auto watching = model->willChange.subscribe([&watch, &model] {
        if (watch.wasInterrupted()) model->stopAfterItemInHand();
    });
    const auto showing = onChanged(model->willChange, [&progress, &model] {
        progress.show(model->cleanProgress(), cleaningTitle);
    });
    runToEnd(context.loop, (model.get()->*clean)());
    const bool leftSomething = !model->failedTitles().empty() || watch.wasInterrupted();
    return leftSomething ? ExitStatus::leftBehind : ExitStatus::done;
}

/// Says what could not be removed, if there was anything.
void printFailures(const std::vector<std::string>& failedTitles);

}  // namespace tidewell::cli
