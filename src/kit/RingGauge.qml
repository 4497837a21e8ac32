import QtQuick
import Tidewell

/// A ring gauge of how far something is.
RingArc {
    property real progress: 0

    fill: Math.min(Math.max(progress, 0.001), 1)
    gradientSpan: fill
}
