import QtQuick
import Tidewell

/// A calm note about what a removal left behind.
Rectangle {
    id: root

    property string symbol
    property string title
    property string text

    readonly property color warning: "#ffb84d"

    implicitHeight: column.implicitHeight + 28
    radius: 14
    color: Theme.withOpacity(warning, 0.08)
    border.width: 1
    border.color: Theme.withOpacity(warning, 0.24)
    Accessible.role: Accessible.AlertMessage
    Accessible.name: title
    Accessible.description: text

    Symbol {
        x: 16
        y: 15
        symbol: root.symbol
        size: 18
        tint: root.warning
    }
    Column {
        id: column
        x: 46
        y: 14
        width: parent.width - x - 16
        spacing: 4

        Label {
            width: parent.width
            text: root.title
            size: 13
            weight: Font.DemiBold
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            text: root.text
            size: 12
            lineHeight: 1.25
            color: Theme.secondary
            wrapMode: Text.Wrap
            maximumLineCount: 8
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
}
