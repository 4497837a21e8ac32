import QtQuick
import Tidewell

/// What Dev Mode keeps its hands off, whatever is picked.
Surface {
    id: root

    readonly property string title: "Never touches"
    readonly property string lines: "Your chats and memory\nYour projects, code and git\nYour keys and credentials"

    implicitHeight: column.implicitHeight + 28
    tint: Ambient.palette.primary
    Accessible.role: Accessible.Grouping
    Accessible.name: title
    Accessible.description: lines

    Column {
        id: column
        x: 16
        y: 14
        width: parent.width - 32
        spacing: Theme.gapSmall

        Row {
            spacing: Theme.gapSmall

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                symbol: "lock.shield.fill"
                size: Theme.symbolRow
                tint: Ambient.palette.soft
                hole: Theme.base
            }
            Label {
                anchors.verticalCenter: parent.verticalCenter
                text: root.title
                size: Theme.sizeControl
                weight: Font.DemiBold
                Accessible.ignored: true
            }
        }
        Label {
            width: parent.width
            text: root.lines
            size: Theme.sizeDetail
            lineHeight: 1.3
            color: Theme.secondary
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
}
