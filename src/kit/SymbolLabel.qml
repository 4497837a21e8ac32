import QtQuick
import Tidewell

/// A symbol, if there is one, and a short text beside it, in the middle of its place.
Item {
    id: root

    property string symbol
    property string text
    property color tint: Theme.text
    property real size: Theme.sizeRow
    property int weight: Font.DemiBold
    property bool isSymbolLast: false

    readonly property real symbolWidth: symbol === "" ? 0 : icon.width + (text === "" ? 0 : row.spacing)

    implicitWidth: Math.ceil(symbolWidth + words.implicitWidth)
    implicitHeight: row.implicitHeight

    Row {
        id: row
        anchors.centerIn: parent
        spacing: root.size * 0.55
        layoutDirection: root.isSymbolLast ? Qt.RightToLeft : Qt.LeftToRight

        Symbol {
            id: icon
            anchors.verticalCenter: parent.verticalCenter
            visible: root.symbol !== ""
            symbol: root.symbol
            size: Math.round(root.size * 1.25)
            tint: root.tint
        }
        Label {
            id: words
            anchors.verticalCenter: parent.verticalCenter
            visible: text !== ""
            width: root.width > 0 ? Math.min(implicitWidth, root.width - root.symbolWidth) : implicitWidth
            text: root.text
            size: root.size
            weight: root.weight
            color: root.tint
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
}
