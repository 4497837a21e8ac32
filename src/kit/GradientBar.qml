import QtQuick
import Tidewell

/// A horizontal capsule that is filled up to a share.
Rectangle {
    id: root

    property real fraction: 0
    property sectionPalette sectionPalette: Ambient.palette

    readonly property real filled: Math.min(Math.max(fraction, 0), 1)

    implicitWidth: 240
    implicitHeight: 6
    radius: height / 2
    color: Theme.track
    Accessible.role: Accessible.ProgressBar

    Rectangle {
        width: root.filled > 0 ? Math.max(root.height, root.width * root.filled) : 0
        height: root.height
        radius: root.radius
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop { position: 0; color: root.sectionPalette.deep }
            GradientStop { position: 1; color: root.sectionPalette.primary }
        }

        Behavior on width {
            enabled: root.Motion.hasPassages
            NumberAnimation { duration: 200; easing.type: Easing.OutCubic }
        }
    }
}
