import QtQuick
import Tidewell

/// Leads to a section.
Pressable {
    id: root

    property string symbol

    implicitHeight: 66
    cornerRadius: Theme.radius
    focusGap: 1

    background: Surface {
        radius: root.cornerRadius
        lift: root.lift
    }
    contentItem: Item {
        Column {
            anchors.centerIn: parent
            spacing: Theme.gapTight

            Item {
                anchors.horizontalCenter: parent.horizontalCenter
                width: 24
                height: 24

                Symbol {
                    anchors.centerIn: parent
                    symbol: root.symbol
                    size: Theme.symbolLarge
                    tint: root.Ambient.palette.primary
                }
            }
            Label {
                anchors.horizontalCenter: parent.horizontalCenter
                text: root.text
                size: Theme.sizeNote
                weight: Font.Medium
                Accessible.ignored: true
            }
        }
    }
}
