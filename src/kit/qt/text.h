#pragma once

#include <QtCore/qstring.h>

#include <string_view>

namespace tidewell {

/// Text of the program, which is UTF-8, for the toolkit. What is not well-formed is shown as
/// U+FFFD.
inline QString toText(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace tidewell
