#include "cli/shapes.h"

namespace tidewell::cli {

namespace {

Value categoryShape(const CleanupViewModel& model, CleanupCategory category) {
    return Value::Object{
        {"title", title(category)},
        {"count", static_cast<std::int64_t>(model.itemsIn(category).size())},
        {"selectedCount", static_cast<std::int64_t>(model.selectedCountIn(category))},
        {"bytes", model.bytesIn(category)},
    };
}

}  // namespace

std::string_view nameOf(SafetyLevel safety) {
    switch (safety) {
        case SafetyLevel::safe:
            return "safe";
        case SafetyLevel::caution:
            return "caution";
    }
    return {};
}

Value textList(const std::vector<std::string>& texts) {
    return Value::List(texts.begin(), texts.end());
}

Value shapeOf(const CleanupItem& item) {
    return Value::Object{
        {"id", item.target.id},
        {"title", item.target.title},
        {"detail", item.target.detail},
        {"category", title(item.target.category)},
        {"safety", nameOf(item.target.safety)},
        {"paths", textList(item.resolvedPaths)},
        {"sizeBytes", item.sizeBytes},
        {"isSelected", item.isSelected},
    };
}

Value shapeOf(const CleanupItems& items) {
    Value::List list;
    for (const auto& item : items) list.push_back(shapeOf(item));
    return list;
}

Value::Object shapeOf(const CleanupViewModel& model) {
    Value::List categories;
    for (const auto category : model.activeCategories())
        categories.push_back(categoryShape(model, category));
    return {
        {"items", shapeOf(model.items())},
        {"totalBytes", model.totalBytes()},
        {"selectedBytes", model.selectedBytes()},
        {"categories", std::move(categories)},
    };
}

}  // namespace tidewell::cli
