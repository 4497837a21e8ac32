#pragma once

#include <QtGui/qcolor.h>

#include <string>

#include "screens/sample.h"

namespace tidewell::gallery {

/// Puts an application of this name on the machine, with an icon of this colour.
void lookLike(const Sample& sample, const std::string& name, const QColor& color);

}  // namespace tidewell::gallery
