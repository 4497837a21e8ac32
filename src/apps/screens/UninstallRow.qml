import QtQuick
import Tidewell

/// The application itself, or one thing that it has left elsewhere.
Rectangle {
    id: root

    property string symbol
    property string title
    property string label
    property string size

    implicitHeight: 50
    radius: 12
    color: Qt.rgba(1, 1, 1, 0.045)
    Accessible.role: Accessible.ListItem
    Accessible.name: title
    Accessible.description: label + ". " + size

    Symbol {
        id: icon
        x: 14
        anchors.verticalCenter: parent.verticalCenter
        symbol: root.symbol
        size: 18
        tint: Ambient.palette.soft
    }
    Column {
        anchors.left: icon.right
        anchors.leftMargin: 12
        anchors.right: figure.left
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        spacing: 1

        Label {
            width: parent.width
            text: root.title
            size: 13
            weight: Font.Medium
            elide: Text.ElideMiddle
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            text: root.label
            size: 11
            color: Theme.secondary
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
    FigureText {
        id: figure
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        text: root.size
        size: 12.5
        weight: Font.DemiBold
        Accessible.ignored: true
    }
}
