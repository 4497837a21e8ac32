#include "devmode/dev_targets.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "cleanup/target_catalogue.h"

namespace tidewell {

namespace {

/// Catalogue rows of other categories that are a developer's all the same.
constexpr std::array<std::string_view, 3> devExtraTargetIDs = {
    "editor-app-caches", "claude-app-caches", "claude-vm-bundles"};

/// Large and slow to load again, so never ticked by default.
std::vector<CleanupTarget> devModelCacheTargets() {
    return {
        {.id = "hf-hub-cache",
         .title = "Hugging Face model cache",
         .detail = "Downloaded model weights (transformers, diffusers). Re-downloadable, but large "
                   "and slow to refetch. Your login token is left alone.",
         .category = CleanupCategory::aiCaches,
         .safety = SafetyLevel::caution,
         .paths = {"~/.cache/huggingface/hub", "~/.cache/huggingface/xet"}},
        {.id = "torch-hub-cache",
         .title = "PyTorch model cache",
         .detail = "Pretrained weights cached by torch.hub. Re-downloaded when a model needs them.",
         .category = CleanupCategory::aiCaches,
         .safety = SafetyLevel::caution,
         .paths = {"~/.cache/torch/hub/checkpoints"}},
        {.id = "keras-model-cache",
         .title = "Keras model cache",
         .detail =
             "Pretrained Keras / TensorFlow weights. Re-downloaded on next use; your datasets "
             "and settings stay.",
         .category = CleanupCategory::aiCaches,
         .safety = SafetyLevel::caution,
         .paths = {"~/.keras/models"}},
        {.id = "conda-pkg-cache",
         .title = "Conda package cache",
         .detail = "Downloaded conda packages, not your environments. Re-fetched when needed.",
         .category = CleanupCategory::aiCaches,
         .safety = SafetyLevel::caution,
         .paths = {"~/miniconda3/pkgs", "~/anaconda3/pkgs", "~/opt/anaconda3/pkgs",
                   "~/miniforge3/pkgs"}},
    };
}

bool isDeveloperRow(const CleanupTarget& target) {
    return target.category == CleanupCategory::developerCaches ||
           std::ranges::find(devExtraTargetIDs, target.id) != devExtraTargetIDs.end();
}

}  // namespace

std::vector<CleanupTarget> devTargets(const Host& host) {
    auto targets = cleanupCatalogue(host);
    std::erase_if(targets, [](const auto& target) { return !isDeveloperRow(target); });
    std::ranges::move(devModelCacheTargets(), std::back_inserter(targets));
    return targets;
}

}  // namespace tidewell
