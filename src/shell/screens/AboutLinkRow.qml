import QtQuick
import Tidewell

/// A row that leads to a page outside the program.
Pressable {
    id: root

    property string symbol
    property string outwardSymbol

    implicitHeight: 40
    leftPadding: 12
    rightPadding: 12
    cornerRadius: 10
    focusGap: 0
    pressedScale: 0.99

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
            size: 17
            tint: root.Ambient.palette.primary
        }
        Label {
            anchors.left: icon.right
            anchors.leftMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            size: 13
            Accessible.ignored: true
        }
        Symbol {
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            symbol: root.outwardSymbol
            size: 14
            tint: Theme.withOpacity(Theme.text, 0.34 + 0.40 * root.lift)
        }
    }
}
