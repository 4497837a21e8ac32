import QtQuick
import Tidewell

/// A model store. It is never removed from here, so it can only be shown where it lies.
Surface {
    id: root

    property string title
    property string size
    property string note

    signal revealed()

    implicitHeight: Math.max(words.implicitHeight + 28, 64)
    Accessible.role: Accessible.ListItem
    Accessible.name: title
    Accessible.description: size + ". " + note

    IconChip {
        id: icon
        x: 16
        anchors.verticalCenter: parent.verticalCenter
        symbol: "cube.box.fill"
    }
    Column {
        id: words
        anchors.left: icon.right
        anchors.leftMargin: Theme.gap
        anchors.right: figure.left
        anchors.rightMargin: Theme.gapWide
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.gapTight

        Label {
            width: parent.width
            text: root.title
            size: Theme.sizeRow
            weight: Font.Medium
            elide: Text.ElideRight
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            text: root.note
            size: Theme.sizeDetail
            lineHeight: 1.15
            color: Theme.secondary
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
    FigureText {
        id: figure
        anchors.right: reveal.left
        anchors.rightMargin: Theme.gapWide
        anchors.verticalCenter: parent.verticalCenter
        text: root.size
        size: Theme.sizeRow
        weight: Font.DemiBold
        Accessible.ignored: true
    }
    SmallButton {
        id: reveal
        anchors.right: parent.right
        anchors.rightMargin: Theme.gapWide
        anchors.verticalCenter: parent.verticalCenter
        symbol: "magnifyingglass"
        text: "Reveal"
        description: root.title
        onClicked: root.revealed()
    }
}
