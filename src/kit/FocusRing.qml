import QtQuick
import Tidewell

/// The line around the control that the keyboard is at.
Rectangle {
    property real cornerRadius: 11
    /// From the control's edge to the line's outer edge.
    property real gap: 4

    anchors.fill: parent
    anchors.margins: -gap
    radius: cornerRadius + gap
    color: "transparent"
    border.width: 2
    border.color: Theme.withOpacity(Ambient.palette.soft, 0.9)
    Accessible.ignored: true
}
