pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// What starts at login or runs in the background.
Item {
    id: root

    required property PerformanceScreen screen
    required property real margin

    Label {
        id: explanation
        x: root.margin
        y: Theme.gapSmall
        width: Math.min(Theme.longestLine, parent.width - 2 * root.margin)
        text: root.screen.startupExplanation
        size: Theme.sizeText
        lineHeight: 1.25
        color: Theme.secondary
        wrapMode: Text.Wrap
    }
    Label {
        x: root.margin
        anchors.verticalCenter: settings.verticalCenter
        visible: list.count > 0
        text: root.screen.startupHeading
        size: Theme.sizeNote
        weight: Font.DemiBold
        color: Theme.secondary
        Accessible.role: Accessible.Heading
    }
    SmallButton {
        id: settings
        anchors.right: parent.right
        anchors.rightMargin: root.margin
        anchors.top: explanation.bottom
        anchors.topMargin: Theme.gapLarge
        text: root.screen.openSettingsLabel
        visible: text !== ""
        onClicked: root.screen.openLoginSettings()
    }
    StartNote {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.verticalCenter: list.verticalCenter
        visible: list.count === 0
        symbol: "power"
        title: "Nothing starts by itself"
        line: "No app has asked to open when you log in."
    }
    CardList {
        id: list
        anchors.left: parent.left
        anchors.leftMargin: root.margin - leftMargin
        anchors.right: parent.right
        anchors.rightMargin: root.margin - rightMargin
        anchors.top: settings.bottom
        anchors.topMargin: Theme.gapSmall
        anchors.bottom: parent.bottom
        spacing: Theme.gapTight
        model: root.screen.loginItems
        Accessible.name: root.screen.startupHeading

        delegate: LoginItemRow {
            required property int index
            required symbol
            required label
            required program
            required scope

            width: list.cardWidth
            onReveal: root.screen.reveal(index)
        }
    }
}
