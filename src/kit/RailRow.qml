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
    cornerRadius: Theme.radius
    pressedScale: 0.985
    text: title
    description: line
    Accessible.selectable: true
    Accessible.selected: isViewing

    background: Rectangle {
        radius: root.cornerRadius
        color: root.isViewing ? Theme.withOpacity(Ambient.palette.primary, 0.15)
                              : Theme.hover(root.lift)
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
            radius: Theme.radiusSmall
            color: root.symbolBackground

            Symbol {
                anchors.centerIn: parent
                symbol: root.symbol
                size: Theme.symbolLarge
                tint: root.symbolColor
            }
        }
        Column {
            anchors.left: square.right
            anchors.leftMargin: Theme.gap
            anchors.right: chevron.left
            anchors.rightMargin: Theme.gapSmall
            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.gapHair

            Label {
                width: parent.width
                text: root.title
                size: Theme.sizeRow
                weight: Font.DemiBold
                elide: Text.ElideRight
                Accessible.ignored: true
            }
            Label {
                width: parent.width
                text: root.line
                size: Theme.sizeDetail
                color: Theme.secondary
                elide: Text.ElideRight
                Accessible.ignored: true
            }
        }
        Symbol {
            id: chevron
            anchors.right: parent.right
            anchors.rightMargin: Theme.gap
            anchors.verticalCenter: parent.verticalCenter
            symbol: "chevron.right"
            size: Theme.symbolSmall
            tint: Theme.withOpacity(Theme.text, root.isViewing ? 0.7 : 0.32)
        }
    }
}
