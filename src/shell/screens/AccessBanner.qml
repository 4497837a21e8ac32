import QtQuick
import Tidewell

/// Tells that the program cannot see everything yet, and the way to let it.
GlowCard {
    id: root

    required property HomeScreen screen

    padding: 18
    cornerRadius: Theme.radiusCard
    implicitHeight: Math.max(words.implicitHeight, buttons.implicitHeight) + 2 * padding

    IconChip {
        id: icon
        anchors.verticalCenter: parent.verticalCenter
        symbol: "lock.shield.fill"
        size: 40
    }
    Column {
        id: words
        anchors.left: icon.right
        anchors.leftMargin: Theme.gapWide
        anchors.right: buttons.left
        anchors.rightMargin: Theme.gapLarge
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.gapTight

        Label {
            text: root.screen.accessTitle
            size: Theme.sizeCard
            weight: Font.DemiBold
        }
        Label {
            width: parent.width
            text: root.screen.accessLine
            size: Theme.sizeNote
            lineHeight: 1.15
            color: Theme.secondary
            wrapMode: Text.WordWrap
        }
    }
    Row {
        id: buttons
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.gap

        PillButton {
            fontSize: Theme.sizeControl
            horizontalPadding: 18
            verticalPadding: 9
            text: "Open Settings"
            onClicked: root.screen.openSettings()
        }
        GhostPillButton {
            fontSize: Theme.sizeControl
            text: "Reveal App"
            onClicked: root.screen.revealApp()
        }
    }
}
