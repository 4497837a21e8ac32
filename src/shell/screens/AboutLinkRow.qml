import QtQuick
import Tidewell

/// A row that leads to a page outside the program.
Pressable {
    id: root

    property string symbol

    implicitHeight: 40
    leftPadding: 12
    rightPadding: 12
    cornerRadius: Theme.radiusSmall
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
            size: Theme.symbolRow
            tint: root.Ambient.palette.primary
        }
        Label {
            anchors.left: icon.right
            anchors.leftMargin: Theme.gap
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            size: Theme.sizeText
            Accessible.ignored: true
        }
        Symbol {
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            symbol: "arrow.up.right"
            size: Theme.symbolSmall
            tint: Theme.withOpacity(Theme.text, 0.34 + 0.40 * root.lift)
        }
    }
}
