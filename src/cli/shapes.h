#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "advisor/advisor_view_model.h"
#include "apps/apps_view_model.h"
#include "cleanup/cleanup_view_model.h"
#include "deepscan/deep_scan_view_model.h"
#include "deepscan/screens/deep_scan_content.h"
#include "devmode/ai_model_scanner.h"
#include "platform/value.h"
#include "shell/mode.h"

namespace tidewell::cli {

// The shapes that documents are made of. Bytes are integers, dates ISO 8601 in UTC, absent values
// are left out, enumerations are written as their case names.

Value textList(const std::vector<std::string>& texts);

/// The list of what each entry looks like.
template <class Entries>
Value listOf(const Entries& entries, Value (*shape)(const typename Entries::value_type&)) {
    Value::List list;
    for (const auto& entry : entries) list.push_back(shape(entry));
    return list;
}

std::string_view nameOf(SafetyLevel safety);
std::string_view nameOf(BigItem::Kind kind);
std::string_view nameOf(RiskBucket bucket);
std::string_view nameOf(Mode section);

Value itemShape(const CleanupItem& item);
Value bigItemShape(const BigItem& item);
Value trashedItemShape(const TrashedItem& item, ByteCount size);
Value appShape(const InstalledApp& app);
Value leftoverShape(const LeftoverFile& leftover);
Value runtimeShape(const SimRuntime& runtime);
Value modelStoreShape(const AIModelStore& store);

// What the scan of a tool found, as its own command and the smart scan both write it.

Value::Object cleanShape(const CleanupViewModel& model);
Value::Object deepScanShape(const DeepScanViewModel& model);
Value::Object appsShape(const AppsViewModel& model);
Value::Object advisorShape(const AdvisorViewModel& model);

}  // namespace tidewell::cli
