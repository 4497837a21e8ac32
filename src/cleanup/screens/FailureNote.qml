import QtQuick
import Tidewell

/// A calm note about what a removal left behind.
Surface {
    id: root

    property string title
    property string text

    implicitHeight: column.implicitHeight + 28
    tint: Theme.caution
    Accessible.role: Accessible.AlertMessage
    Accessible.name: title
    Accessible.description: text

    Symbol {
        x: 16
        y: 15
        symbol: "exclamationmark.triangle.fill"
        size: Theme.symbolRow
        tint: root.tint
    }
    Column {
        id: column
        x: 46
        y: 14
        width: parent.width - x - 16
        spacing: Theme.gapTight

        Label {
            width: parent.width
            text: root.title
            size: Theme.sizeText
            weight: Font.DemiBold
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            text: root.text
            size: Theme.sizeNote
            lineHeight: 1.25
            color: Theme.secondary
            wrapMode: Text.Wrap
            maximumLineCount: 8
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
}
