#pragma once

#include <QtGui/qicon.h>

namespace tidewell {

/// The status item's image: the logo's mark, 18 points high, to be tinted by the desktop where it
/// does that; a symbol where the file is missing.
QIcon statusImage();

}  // namespace tidewell
