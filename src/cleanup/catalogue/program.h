#pragma once

#include <string_view>

#include "cleanup/catalogue/constant_texts.h"

namespace tidewell {

/// A program that works in a row's folders while it runs, and the signs by which it is known then.
struct Program {
    std::string_view name;         ///< as its users call it
    ConstantTexts executables;     ///< file names
    ConstantTexts flatpaks = {};   ///< application ids
    ConstantTexts snaps = {};      ///< names
    ConstantTexts lockFiles = {};  ///< table paths, patterns included
};

}  // namespace tidewell
