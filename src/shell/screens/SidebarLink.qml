import QtQuick
import Tidewell

/// A quiet row of the sidebar that is no section.
Pressable {
    id: root

    property string symbol

    implicitHeight: 34
    leftPadding: 12
    rightPadding: 12
    cornerRadius: 10

    background: Rectangle {
        radius: root.cornerRadius
        color: Theme.hoverFill
        opacity: root.lift
    }
    contentItem: Item {
        Symbol {
            id: icon
            anchors.verticalCenter: parent.verticalCenter
            symbol: root.symbol
            size: 16
            tint: Theme.withOpacity(Theme.text, 0.62 + 0.30 * root.lift)
        }
        Label {
            anchors.left: icon.right
            anchors.leftMargin: 10
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            size: 12.5
            color: Theme.withOpacity(Theme.text, 0.62 + 0.30 * root.lift)
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
}
