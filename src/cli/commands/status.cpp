#include "cleanup/stored_sums.h"
#include "cli/commands/commands.h"
#include "cli/report.h"
#include "cli/shapes.h"
#include "devmode/developer_machine.h"
#include "kit/byte_text.h"
#include "platform/dates.h"
#include "platform/user_defaults.h"
#include "platform/workspace.h"
#include "shell/permissions_model.h"
#include "shell/screens/home_content.h"
#include "shell/theme_engine.h"

namespace tidewell::cli {

namespace {

/// What Home shows of the machine, and what the program keeps for good.
struct Status {
    std::shared_ptr<ThemeEngine> theme;
    ByteCount totalFreedBytes = 0;
    std::optional<Date> lastCleanup;
    System system = System::macOS;
    std::optional<bool> hasFullDiskAccess;  ///< absent where there is none to grant
    bool isDeveloper = false;
};

Status readStatus(const Host& host) {
    Signal neverActivated;
    const UserDefaults defaults(host.configurationDirectory);
    const auto permissions =
        std::make_shared<PermissionsModel>(host, desktopWorkspace(host), neverActivated);
    std::optional<bool> access;
    if (permissions->hasAccessToGrant()) access = permissions->hasFullDiskAccess();
    return {
        .theme = std::make_shared<ThemeEngine>(host, neverActivated),
        .totalFreedBytes = defaults.integer(totalFreedBytesKey),
        .lastCleanup = lastCleanupDate(defaults.real(lastCleanupAtKey)),
        .system = host.system,
        .hasFullDiskAccess = access,
        .isDeveloper = isDeveloperMachine(host),
    };
}

/// The document of a machine of the system that was served first does not say which it is.
std::optional<std::string_view> nameToTell(System system) {
    switch (system) {
        case System::macOS:
            return std::nullopt;
        case System::linux:
            return "linux";
    }
    return std::nullopt;
}

std::string yesOrNo(bool answer) {
    return answer ? "yes" : "no";
}

Value document(const Status& status) {
    const auto& palette = status.theme->palette();
    Value::Object shape = {
        {"freeBytes", status.theme->freeBytes()},
        {"totalBytes", status.theme->totalBytes()},
        {"freeFraction", status.theme->freeFraction()},
        {"health", Value::Object{{"label", palette.label}, {"message", palette.message}}},
        {"totalFreedBytes", status.totalFreedBytes},
    };
    if (status.lastCleanup) shape.emplace_back("lastCleanupAt", iso8601(*status.lastCleanup));
    if (const auto name = nameToTell(status.system)) shape.emplace_back("system", *name);
    if (status.hasFullDiskAccess)
        shape.emplace_back("hasFullDiskAccess", *status.hasFullDiskAccess);
    shape.emplace_back("isDeveloperMachine", status.isDeveloper);
    return shape;
}

void print(const Status& status) {
    const auto& palette = status.theme->palette();
    printLine(inked(byteText(status.theme->freeBytes()) + " free of " +
                        byteText(status.theme->totalBytes()),
                    Ink::strong) +
              "  " + std::string(palette.label));
    printLine(palette.message);
    printLine();
    printLine("  Won back so far     " + byteText(status.totalFreedBytes));
    printLine("  Last cleanup        " + (status.lastCleanup
                                              ? relativeDateAndTime(*status.lastCleanup, now())
                                              : std::string("never")));
    if (status.hasFullDiskAccess)
        printLine("  Full Disk Access    " + yesOrNo(*status.hasFullDiskAccess));
    printLine("  Developer machine   " + yesOrNo(status.isDeveloper));
}

}  // namespace

Outcome runStatus(const Context& context, const StatusCall&) {
    const auto status = readStatus(context.host);
    if (context.form == OutputForm::json) {
        printDocument(document(status));
    } else {
        print(status);
    }
    return ExitStatus::done;
}

}  // namespace tidewell::cli
