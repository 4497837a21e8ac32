pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// What starts at login or runs in the background.
ScrollArea {
    id: root

    required property PerformanceScreen screen
    required property real margin

    contentHeight: column.y + column.height + 26

    Column {
        id: column
        x: root.margin
        y: 24
        width: parent.width - 2 * root.margin
        spacing: 14

        Label {
            width: parent.width
            text: root.screen.startupExplanation
            size: 13
            lineHeight: 1.25
            color: Theme.secondary
            wrapMode: Text.Wrap
        }
        Item {
            width: parent.width
            height: settings.height + 6

            Label {
                anchors.verticalCenter: settings.verticalCenter
                text: root.screen.startupHeading
                size: 12
                weight: Font.DemiBold
                color: Theme.secondary
                Accessible.role: Accessible.Heading
            }
            SmallButton {
                id: settings
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                text: root.screen.openSettingsLabel
                onClicked: root.screen.openLoginSettings()
            }
        }
        ButtonRows {
            id: rows
            width: parent.width
            spacing: 4
            model: root.screen.loginItems
            Accessible.name: root.screen.startupHeading

            delegate: LoginItemRow {
                required property int index
                required symbol
                required label
                required program
                required scope

                width: rows.width
                revealLabel: root.screen.revealLabel
                onReveal: root.screen.reveal(index)
            }
        }
    }
}
