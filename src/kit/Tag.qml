import QtQuick
import Tidewell

/// A word in a small tinted box, about what stands beside it.
Rectangle {
    id: root

    property string text
    property color tint: Ambient.palette.primary
    property color textColor: Theme.ink(tint)
    property real strength: 0.18

    implicitWidth: label.implicitWidth + 14
    implicitHeight: 18
    radius: Theme.radiusTag
    color: Theme.withOpacity(tint, strength)

    Label {
        id: label
        anchors.centerIn: parent
        text: root.text
        size: Theme.sizeTag
        weight: Font.DemiBold
        color: root.textColor
        Accessible.ignored: true
    }
}
