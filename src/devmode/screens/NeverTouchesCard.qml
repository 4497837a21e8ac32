import QtQuick
import Tidewell

/// What Dev Mode keeps its hands off, whatever is picked.
Rectangle {
    id: root

    property string symbol
    property string title
    property string lines

    implicitHeight: column.implicitHeight + 28
    radius: 14
    color: Theme.withOpacity(Ambient.palette.primary, 0.07)
    border.width: 1
    border.color: Theme.withOpacity(Ambient.palette.primary, 0.18)
    Accessible.role: Accessible.Grouping
    Accessible.name: title
    Accessible.description: lines

    Column {
        id: column
        x: 16
        y: 14
        width: parent.width - 32
        spacing: 7

        Row {
            spacing: 8

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                symbol: root.symbol
                size: 16
                tint: Ambient.palette.soft
                hole: Theme.base
            }
            Label {
                anchors.verticalCenter: parent.verticalCenter
                text: root.title
                size: 12.5
                weight: Font.DemiBold
                Accessible.ignored: true
            }
        }
        Label {
            width: parent.width
            text: root.lines
            size: 11.5
            lineHeight: 1.3
            color: Theme.secondary
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
}
