#pragma once

#include "cleanup/cleanup_view_model.h"
#include "platform/value.h"

namespace tidewell::cli {

// The shapes that the documents of several commands share.

Value shapeOf(const CleanupItem& item);
Value shapeOf(const CleanupItems& items);
/// What a scan of the Clean tool found, with the ticks as they stand.
Value::Object shapeOf(const CleanupViewModel& model);

Value textList(const std::vector<std::string>& texts);

std::string_view nameOf(SafetyLevel safety);

}  // namespace tidewell::cli
