#pragma once

#include <span>
#include <string_view>

#include "cleanup/catalogue/constant_texts.h"
#include "platform/system.h"

namespace tidewell {

/// A local AI tool: it is there if any of `detect` exists, and keeps its models at the first of
/// `measure` that does.
struct ModelTool {
    std::string_view tool;
    ConstantTexts detect;
    ConstantTexts measure;
    std::string_view note;
};

/// What Dev Mode knows of one system's machines, beside the catalogue. Paths are table paths.
struct DevKnowledge {
    std::span<const std::string_view> extraRows;  ///< ids of rows that a developer's are too
    std::span<const ModelTool> modelStores;
    std::span<const std::string_view> signs;  ///< any of them is found on a developer's machine
};

DevKnowledge devKnowledge(System system);

DevKnowledge macOSDevKnowledge();
DevKnowledge linuxDevKnowledge();

}  // namespace tidewell
