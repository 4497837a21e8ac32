#include "cli/commands/commands.h"
#include "cli/report.h"
#include "kit/byte_text.h"
#include "platform/disk_usage.h"
#include "platform/text.h"

namespace tidewell::cli {

namespace {

constexpr int sizeColumns = 10;

}  // namespace

Outcome runMeasure(const Context& context, const MeasureCall& call) {
    Value::List measured;
    for (const auto& path : call.paths) {
        const auto size = allocatedSize(path);
        measured.push_back(Value::Object{{"path", path}, {"sizeBytes", size}});
        if (context.form == OutputForm::text)
            printLine(rightAligned(byteText(size), sizeColumns) + "  " + terminalText(path));
    }
    if (context.form == OutputForm::json)
        printDocument(Value::Object{{"paths", std::move(measured)}});
    return ExitStatus::done;
}

}  // namespace tidewell::cli
