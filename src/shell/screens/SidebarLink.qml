import QtQuick
import Tidewell

/// A quiet row of the sidebar that is no section.
Pressable {
    id: root

    property string symbol

    implicitHeight: 34
    leftPadding: 12
    rightPadding: 12
    cornerRadius: Theme.radiusSmall

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
            size: Theme.symbolRow
            tint: Theme.withOpacity(Theme.text, 0.62 + 0.30 * root.lift)
        }
        Label {
            anchors.left: icon.right
            anchors.leftMargin: Theme.gap
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            size: Theme.sizeControl
            color: Theme.withOpacity(Theme.text, 0.62 + 0.30 * root.lift)
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
}
