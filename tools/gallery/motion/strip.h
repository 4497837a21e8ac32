#pragma once

#include <QtGui/qimage.h>

#include <vector>

namespace tidewell::gallery {

/// What was seen at a time, in milliseconds.
struct Frame {
    int time;
    QImage picture;
};

/// The frames side by side in rows, each with its time and how far it is from the one before it:
/// the mean of all channels' changes, of a thousand. A flash shows as two large ones in a row.
QImage strip(const std::vector<Frame>& frames);

}  // namespace tidewell::gallery
