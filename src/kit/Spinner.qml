import QtQuick
import Tidewell

/// Says that something is under way whose end is not known. Stands still where nothing may move.
RingArc {
    id: root

    diameter: 18
    lineWidth: 2.5
    fill: 0.3
    gradientSpan: 0.3
    glow: 0
    Accessible.ignored: false
    Accessible.role: Accessible.Animation

    RotationAnimation on rotation {
        running: root.visible && root.Motion.isAllowed
        loops: Animation.Infinite
        from: 0
        to: 360
        duration: 900
    }
}
