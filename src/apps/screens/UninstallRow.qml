import QtQuick
import Tidewell

/// The application itself, or one thing that it has left elsewhere.
Surface {
    id: root

    property string symbol
    property string title
    property string label
    property string size

    implicitHeight: 50
    strength: 0.8
    Accessible.role: Accessible.ListItem
    Accessible.name: title
    Accessible.description: label + ". " + size

    Symbol {
        id: icon
        x: 14
        anchors.verticalCenter: parent.verticalCenter
        symbol: root.symbol
        size: Theme.symbolRow
        tint: Ambient.palette.soft
    }
    Column {
        anchors.left: icon.right
        anchors.leftMargin: Theme.gap
        anchors.right: figure.left
        anchors.rightMargin: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.gapHair

        Label {
            width: parent.width
            text: root.title
            size: Theme.sizeText
            weight: Font.Medium
            elide: Text.ElideMiddle
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            text: root.label
            size: Theme.sizeMinor
            color: Theme.secondary
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
    FigureText {
        id: figure
        anchors.right: parent.right
        anchors.rightMargin: Theme.gap
        anchors.verticalCenter: parent.verticalCenter
        text: root.size
        size: Theme.sizeControl
        weight: Font.DemiBold
        Accessible.ignored: true
    }
}
