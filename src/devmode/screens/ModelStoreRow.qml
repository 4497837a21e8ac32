import QtQuick
import Tidewell

/// A model store. It is never removed from here, so it can only be shown where it lies.
Rectangle {
    id: root

    property string symbol
    property string title
    property string size
    property string note
    property string revealLabel
    property string revealSymbol

    signal revealed()

    implicitHeight: Math.max(words.implicitHeight + 28, 64)
    radius: 14
    color: Qt.rgba(1, 1, 1, 0.042)
    border.width: 1
    border.color: Qt.rgba(1, 1, 1, 0.06)
    Accessible.role: Accessible.ListItem
    Accessible.name: title
    Accessible.description: size + ". " + note

    IconChip {
        id: icon
        x: 16
        anchors.verticalCenter: parent.verticalCenter
        symbol: root.symbol
    }
    Column {
        id: words
        anchors.left: icon.right
        anchors.leftMargin: 14
        anchors.right: figure.left
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        spacing: 3

        Label {
            width: parent.width
            text: root.title
            size: 13.5
            weight: Font.Medium
            elide: Text.ElideRight
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            text: root.note
            size: 11.5
            lineHeight: 1.15
            color: Theme.secondary
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
    FigureText {
        id: figure
        anchors.right: reveal.left
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        text: root.size
        size: 13.5
        weight: Font.DemiBold
        Accessible.ignored: true
    }
    SmallButton {
        id: reveal
        anchors.right: parent.right
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        symbol: root.revealSymbol
        text: root.revealLabel
        description: root.title
        onClicked: root.revealed()
    }
}
