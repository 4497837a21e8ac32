import QtQuick
import Tidewell

/// How well the disk is, in a word and a colour.
InfoPill {
    id: root

    property string label

    strength: 2
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
        size: Theme.sizeNote
        weight: Font.Medium
        Accessible.ignored: true
    }
}
