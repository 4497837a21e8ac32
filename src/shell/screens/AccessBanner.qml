import QtQuick
import Tidewell

/// Tells that the program cannot see everything yet, and the way to let it.
GlowCard {
    id: root

    required property HomeScreen screen

    padding: 18
    cornerRadius: 18
    implicitHeight: Math.max(words.implicitHeight, buttons.implicitHeight) + 2 * padding

    IconChip {
        id: icon
        anchors.verticalCenter: parent.verticalCenter
        symbol: root.screen.accessSymbol
        size: 40
    }
    Column {
        id: words
        anchors.left: icon.right
        anchors.leftMargin: 16
        anchors.right: buttons.left
        anchors.rightMargin: 20
        anchors.verticalCenter: parent.verticalCenter
        spacing: 4

        Label {
            text: root.screen.accessTitle
            size: 14.5
            weight: Font.DemiBold
        }
        Label {
            width: parent.width
            text: root.screen.accessLine
            size: 12
            lineHeight: 1.15
            color: Theme.secondary
            wrapMode: Text.WordWrap
        }
    }
    Row {
        id: buttons
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: 10

        PillButton {
            fontSize: 12.5
            horizontalPadding: 18
            verticalPadding: 9
            text: root.screen.openSettingsLabel
            onClicked: root.screen.openSettings()
        }
        GhostPillButton {
            fontSize: 12.5
            text: root.screen.revealAppLabel
            onClicked: root.screen.revealApp()
        }
    }
}
