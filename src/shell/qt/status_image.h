#pragma once

#include <QtCore/qstring.h>
#include <QtGui/qicon.h>

namespace tidewell {

inline constexpr auto logoMarkFile = ":/Tidewell/logos/logo-mark.svg";

/// The status item's image: the logo's mark, 18 points high, to be tinted by the desktop where it
/// does that; a symbol where the file cannot be read.
QIcon statusImage(const QString& file = logoMarkFile);

}  // namespace tidewell
