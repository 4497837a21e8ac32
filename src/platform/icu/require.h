#pragma once

#include <unicode/utypes.h>

#include <stdexcept>
#include <string>

namespace tidewell::icu_support {

/// ICU fails only where its own data are missing, which no caller can mend.
inline void require(UErrorCode status) {
    if (U_FAILURE(status)) throw std::runtime_error(std::string("ICU: ") + u_errorName(status));
}

}  // namespace tidewell::icu_support
