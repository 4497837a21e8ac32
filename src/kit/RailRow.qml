import QtQuick
import Tidewell

/// A row of the rail beside a list: one group of what is listed. Pressing it shows the group.
Pressable {
    id: root

    property string symbol
    property string title
    property string line
    property bool isViewing: false
    /// Where the symbol stands; what lies before it belongs to whoever uses the row.
    property real inset: 12
    property color symbolColor: isViewing ? Ambient.palette.soft : Theme.withOpacity(Theme.text, 0.80)
    /// Of the square behind the symbol.
    property color symbolBackground: "transparent"

    readonly property bool hasSquare: symbolBackground.a > 0

    implicitHeight: 58
    cornerRadius: 13
    pressedScale: 0.985
    text: title
    description: line
    Accessible.selectable: true
    Accessible.selected: isViewing

    background: Rectangle {
        radius: root.cornerRadius
        color: root.isViewing ? Theme.withOpacity(Ambient.palette.primary, 0.15)
                              : Qt.rgba(1, 1, 1, 0.06 * root.lift)
        border.width: 1
        border.color: root.isViewing ? Theme.withOpacity(Ambient.palette.primary, 0.38) : "transparent"
    }

    contentItem: Item {
        Rectangle {
            id: square
            x: root.inset
            anchors.verticalCenter: parent.verticalCenter
            width: root.hasSquare ? 34 : 20
            height: width
            radius: 10
            color: root.symbolBackground

            Symbol {
                anchors.centerIn: parent
                symbol: root.symbol
                size: 20
                tint: root.symbolColor
            }
        }
        Column {
            anchors.left: square.right
            anchors.leftMargin: 12
            anchors.right: chevron.left
            anchors.rightMargin: 6
            anchors.verticalCenter: parent.verticalCenter
            spacing: 2

            Label {
                width: parent.width
                text: root.title
                size: 13.5
                weight: Font.DemiBold
                elide: Text.ElideRight
                Accessible.ignored: true
            }
            Label {
                width: parent.width
                text: root.line
                size: 11.5
                color: Theme.secondary
                elide: Text.ElideRight
                Accessible.ignored: true
            }
        }
        Symbol {
            id: chevron
            anchors.right: parent.right
            anchors.rightMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            symbol: "chevron.right"
            size: 15
            tint: Theme.withOpacity(Theme.text, root.isViewing ? 0.7 : 0.32)
        }
    }
}
