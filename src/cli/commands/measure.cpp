#include "cli/commands/commands.h"
#include "cli/report.h"
#include "kit/byte_text.h"
#include "platform/disk_usage.h"
#include "platform/text.h"

namespace tidewell::cli {

namespace {

constexpr int sizeColumns = 10;

/// On machines where a file with several names counts each time, only what is shared is asked for
/// in addition.
FreedUsage measuredAs(System system, const std::string& path, const MeasureCall& call) {
    FreedUsage usage;
    if (system == System::linux || call.showsShared) usage = freedByRemoving({&path, 1});
    if (system == System::macOS) usage.freedBytes = allocatedSize(path);
    return usage;
}

void printMeasure(const FreedUsage& usage, const std::string& path, const MeasureCall& call) {
    auto line = rightAligned(byteText(usage.freedBytes), sizeColumns);
    if (call.showsShared)
        line += "  " + rightAligned(byteText(usage.sharedBytes) + " shared", sizeColumns + 7);
    printLine(line + "  " + terminalText(path));
}

}  // namespace

Outcome runMeasure(const Context& context, const MeasureCall& call) {
    Value::List measured;
    for (const auto& path : call.paths) {
        const auto usage = measuredAs(context.host.system, path, call);
        Value::Object shape = {{"path", path}, {"sizeBytes", usage.freedBytes}};
        if (call.showsShared) shape.emplace_back("sharedBytes", usage.sharedBytes);
        measured.push_back(std::move(shape));
        if (context.form == OutputForm::text) printMeasure(usage, path, call);
    }
    if (context.form == OutputForm::json)
        printDocument(Value::Object{{"paths", std::move(measured)}});
    return ExitStatus::done;
}

}  // namespace tidewell::cli
