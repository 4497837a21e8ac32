import QtQuick
import Tidewell

/// Leads to a section.
Pressable {
    id: root

    property string symbol

    implicitHeight: 66
    cornerRadius: 13
    focusGap: 1

    background: Rectangle {
        radius: root.cornerRadius
        color: Qt.rgba(1, 1, 1, 0.05 + 0.05 * root.lift)
        border.width: 1
        border.color: Qt.rgba(1, 1, 1, 0.07 + 0.09 * root.lift)
    }
    contentItem: Item {
        Column {
            anchors.centerIn: parent
            spacing: 4

            Item {
                anchors.horizontalCenter: parent.horizontalCenter
                width: 24
                height: 24

                Symbol {
                    anchors.centerIn: parent
                    symbol: root.symbol
                    size: 21
                    tint: root.Ambient.palette.primary
                }
            }
            Label {
                anchors.horizontalCenter: parent.horizontalCenter
                text: root.text
                size: 12
                weight: Font.Medium
                Accessible.ignored: true
            }
        }
    }
}
