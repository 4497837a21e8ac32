#include "cli/shapes.h"

#include "apps/helper_note.h"
#include "apps/linux/removal_command.h"
#include "platform/dates.h"

namespace tidewell::cli {

namespace {

/// Adds a member unless its value is absent.
template <class Held>
void addIfPresent(Value::Object& shape, std::string key, const std::optional<Held>& value) {
    if (value) shape.emplace_back(std::move(key), Value(*value));
}

void addDate(Value::Object& shape, std::string key, const std::optional<Date>& date) {
    if (date) shape.emplace_back(std::move(key), iso8601(*date));
}

Value categoryShape(const CleanupViewModel& model, CleanupCategory category) {
    return Value::Object{
        {"title", title(category)},
        {"count", static_cast<std::int64_t>(model.countIn(category))},
        {"selectedCount", static_cast<std::int64_t>(model.selectedCountIn(category))},
        {"bytes", model.bytesIn(category)},
    };
}

}  // namespace

Value textList(const std::vector<std::string>& texts) {
    return Value::List(texts.begin(), texts.end());
}

std::string_view nameOf(SafetyLevel safety) {
    switch (safety) {
        case SafetyLevel::safe:
            return "safe";
        case SafetyLevel::caution:
            return "caution";
    }
    return {};
}

std::string_view nameOf(BigItem::Kind kind) {
    switch (kind) {
        case BigItem::Kind::container:
            return "container";
        case BigItem::Kind::installer:
            return "installer";
        case BigItem::Kind::cache:
            return "cache";
        case BigItem::Kind::rebuildable:
            return "rebuildable";
        case BigItem::Kind::appData:
            return "appData";
        case BigItem::Kind::personal:
            return "personal";
        case BigItem::Kind::other:
            return "other";
    }
    return {};
}

std::string_view nameOf(RiskBucket bucket) {
    switch (bucket) {
        case RiskBucket::safe:
            return "safe";
        case RiskBucket::installer:
            return "installer";
        case RiskBucket::container:
            return "container";
        case RiskBucket::review:
            return "review";
        case RiskBucket::personal:
            return "personal";
        case RiskBucket::other:
            return "other";
        case RiskBucket::inTrash:
            return "inTrash";
    }
    return {};
}

std::string_view nameOf(Mode mode) {
    return section(mode).jsonName;
}

Value itemShape(const CleanupItem& item) {
    Value::Object shape = {
        {"id", item.target.id},
        {"title", item.target.title},
        {"detail", item.target.detail},
        {"category", title(item.target.category)},
        {"safety", nameOf(item.target.safety)},
        {"paths", textList(item.resolvedPaths)},
        {"sizeBytes", item.sizeBytes},
        {"isSelected", item.isSelected},
    };
    if (item.sharedBytes > 0) shape.emplace_back("sharedBytes", item.sharedBytes);
    if (item.isInUse()) shape.emplace_back("runningProgram", item.runningPrograms.front());
    return shape;
}

Value bigItemShape(const BigItem& item) {
    Value::Object shape = {
        {"id", item.id},
        {"name", item.name},
        {"location", item.location},
        {"sizeBytes", item.sizeBytes},
        {"isDirectory", item.isDirectory},
        {"kind", nameOf(item.kind)},
        {"bucket", nameOf(riskBucket(item.kind))},
    };
    if (item.sharedBytes > 0) shape.emplace_back("sharedBytes", item.sharedBytes);
    addIfPresent(shape, "note", item.note);
    addIfPresent(shape, "reclaimCommand", item.reclaimCommand);
    return shape;
}

Value trashedItemShape(const TrashedItem& item, ByteCount size) {
    Value::Object shape = {{"name", item.name}};
    addIfPresent(shape, "origin", item.origin);
    addDate(shape, "deletedAt", item.deletedAt);
    shape.emplace_back("sizeBytes", size);
    shape.emplace_back("folder", item.folder);
    return shape;
}

Value appShape(const InstalledApp& app) {
    Value::Object shape = {{"id", app.id}, {"name", app.name}, {"path", app.url}};
    addIfPresent(shape, "bundleID", app.bundleID);
    addIfPresent(shape, "version", app.version);
    shape.emplace_back("sizeBytes", app.sizeBytes);
    addDate(shape, "lastUsed", app.lastUsed);
    shape.emplace_back("lastUsedLabel", lastUsedLabel(app, now()));
    shape.emplace_back("monthsIdle", monthsIdle(app, now()));
    if (app.kind == AppKind::bundle)
        addIfPresent(shape, "helperNote", helperNote(app.name, app.bundleID));
    else
        shape.emplace_back("kind", nameOf(app.kind));
    if (uninstallWay(app.kind) == UninstallWay::shownCommand)
        shape.emplace_back("command", removalCommandText(app));
    return shape;
}

Value leftoverShape(const LeftoverFile& leftover) {
    return Value::Object{
        {"path", leftover.url}, {"category", leftover.category}, {"sizeBytes", leftover.sizeBytes}};
}

Value runtimeShape(const SimRuntime& runtime) {
    Value::Object shape = {
        {"id", runtime.id},
        {"name", runtime.name},
        {"build", runtime.build},
        {"sizeBytes", runtime.sizeBytes},
        {"deletable", runtime.deletable},
    };
    addDate(shape, "lastUsed", runtime.lastUsed);
    shape.emplace_back("deviceNames", textList(runtime.deviceNames));
    shape.emplace_back("usedByLabel", runtime.usedByLabel());
    return shape;
}

Value modelStoreShape(const AIModelStore& store) {
    return Value::Object{{"id", store.id},
                         {"tool", store.tool},
                         {"sizeBytes", store.sizeBytes},
                         {"note", store.note}};
}

Value trashedThingShape(const TrashedThing& thing) {
    return trashedItemShape(thing.item, thing.sizeBytes);
}

Value::Object cleanShape(const CleanupViewModel& model) {
    Value::List categories;
    for (const auto category : model.activeCategories())
        categories.push_back(categoryShape(model, category));
    return {
        {"items", listOf(model.items(), itemShape)},
        {"totalBytes", model.totalBytes()},
        {"selectedBytes", model.selectedBytes()},
        {"categories", std::move(categories)},
    };
}

Value::Object deepScanShape(const DeepScanViewModel& model) {
    Value::Object shape = {{"items", listOf(model.items(), bigItemShape)},
                           {"totalBytes", model.totalBytes()}};
    if (model.listsTrash) shape.emplace_back("inTrash", listOf(model.inTrash(), trashedThingShape));
    return shape;
}

Value::Object appsShape(const AppsViewModel& model) {
    return {{"apps", listOf(model.sortedApps(), appShape)},
            {"totalAppBytes", model.totalAppBytes()}};
}

namespace {

std::string_view nameOf(FindingAction action) {
    switch (action) {
        case FindingAction::none:
            return "none";
        case FindingAction::run:
            return "run";
        case FindingAction::copy:
            return "copy";
    }
    return {};
}

Value findingShape(const Finding& finding) {
    Value::Object shape = {
        {"id", finding.id}, {"title", finding.title}, {"detail", finding.detail}};
    addIfPresent(shape, "sizeBytes", finding.sizeBytes);
    Value::Object action = {{"kind", nameOf(finding.action)}};
    if (!finding.command.empty()) action.emplace_back("command", finding.command);
    shape.emplace_back("action", std::move(action));
    return shape;
}

}  // namespace

Value::Object advisorShape(const AdvisorViewModel& model) {
    const auto& findings = model.findings();
    Value::Object shape;
    switch (model.system) {
        case System::macOS:
            shape = {{"runtimes", listOf(findings.runtimes, runtimeShape)},
                     {"unavailableSims", findings.unavailableSims},
                     {"snapshotCount", findings.snapshotCount},
                     {"dockerBytes", findings.dockerBytes}};
            break;
        case System::linux:
            shape = {{"findings", listOf(listed(findings), findingShape)}};
            break;
    }
    shape.emplace_back("reclaimableBytes", model.reclaimableBytes());
    shape.emplace_back("hasFindings", model.hasFindings());
    return shape;
}

}  // namespace tidewell::cli
