import QtQuick
import Tidewell

/// When the last clean was, and when the next scan would be worth it.
Surface {
    id: root

    required property HomeScreen screen

    implicitHeight: 46

    Symbol {
        id: icon
        x: 18
        anchors.verticalCenter: parent.verticalCenter
        symbol: "sparkles"
        size: Theme.symbolRow
        tint: Ambient.palette.primary
    }
    Label {
        anchors.left: icon.right
        anchors.leftMargin: Theme.gap
        anchors.right: next.left
        anchors.rightMargin: Theme.gapLarge
        anchors.verticalCenter: parent.verticalCenter
        text: root.screen.lastCleanup
        size: Theme.sizeControl
        weight: Font.Medium
        elide: Text.ElideRight
    }
    Label {
        id: next
        anchors.right: parent.right
        anchors.rightMargin: Theme.gapWide
        anchors.verticalCenter: parent.verticalCenter
        text: root.screen.nextScan
        size: Theme.sizeControl
        color: Theme.secondary
    }
}
