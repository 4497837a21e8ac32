import QtQuick
import Tidewell

/// When the last clean was, and when the next scan would be worth it.
Rectangle {
    id: root

    required property HomeScreen screen

    implicitHeight: 46
    radius: 15
    color: Qt.rgba(1, 1, 1, 0.04)
    border.width: 1
    border.color: Qt.rgba(1, 1, 1, 0.06)

    Symbol {
        id: icon
        x: 18
        anchors.verticalCenter: parent.verticalCenter
        symbol: root.screen.scheduleSymbol
        size: 16
        tint: Ambient.palette.primary
    }
    Label {
        anchors.left: icon.right
        anchors.leftMargin: 10
        anchors.right: next.left
        anchors.rightMargin: 20
        anchors.verticalCenter: parent.verticalCenter
        text: root.screen.lastCleanup
        size: 12.5
        weight: Font.Medium
        elide: Text.ElideRight
    }
    Label {
        id: next
        anchors.right: parent.right
        anchors.rightMargin: 18
        anchors.verticalCenter: parent.verticalCenter
        text: root.screen.nextScan
        size: 12.5
        color: Theme.secondary
    }
}
