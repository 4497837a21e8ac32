import QtQuick
import Tidewell

/// How well the disk is, in a word and a colour.
InfoPill {
    id: root

    property string label
    property color tint

    color: Theme.withOpacity(tint, 0.14)
    border.color: Theme.withOpacity(tint, 0.34)
    Accessible.role: Accessible.StaticText
    Accessible.name: label

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: 7
        height: 7
        radius: 3.5
        color: root.tint
    }
    Label {
        anchors.verticalCenter: parent.verticalCenter
        text: root.label
        size: 12
        weight: Font.Medium
        Accessible.ignored: true
    }
}
