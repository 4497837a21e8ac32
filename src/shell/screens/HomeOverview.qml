pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// How full the disk is, what was won back, and each tool's latest result.
FocusScope {
    id: root

    required property HomeScreen screen

    readonly property real margin: Theme.pageMargin(width)

    Component.onCompleted: screen.open()

    ScrollArea {
        anchors.fill: parent
        contentHeight: column.y + column.height + 26

        ScreenHeader {
            anchors.left: parent.left
            anchors.leftMargin: root.margin
            anchors.right: actions.left
            anchors.rightMargin: Theme.gapLarge
            y: 30
            title: "Overview"
            subtitle: "Free up space, safely"
        }
        Row {
            id: actions
            anchors.right: parent.right
            anchors.rightMargin: root.margin
            y: 33
            spacing: Theme.gap

            HealthPill {
                anchors.verticalCenter: parent.verticalCenter
                label: root.screen.healthLabel
                tint: root.screen.healthColor
            }
            PillButton {
                focus: true
                symbol: "sparkles"
                text: root.screen.scanLabel
                onClicked: root.screen.startScan()
            }
        }

        Column {
            id: column
            x: root.margin
            y: 108
            width: parent.width - 2 * root.margin
            spacing: Theme.gap

            AccessBanner {
                width: parent.width
                visible: root.screen.showsAccessBanner
                screen: root.screen
            }
            DiskCard {
                width: parent.width
                screen: root.screen
            }
            Grid {
                id: tools

                readonly property real cardWidth: (width - (columns - 1) * columnSpacing) / columns

                width: parent.width
                columns: root.width > 1240 ? 4 : 2  // a window of about 1500
                columnSpacing: Theme.gap
                rowSpacing: Theme.gap

                Repeater {
                    model: root.screen.tools

                    HomeToolCard {
                        required property int index
                        required symbol
                        required property string title
                        required lines
                        required value
                        required property sectionPalette accent

                        width: tools.cardWidth
                        text: title
                        Ambient.palette: accent
                        onClicked: root.screen.openTool(index)
                    }
                }
            }
            ScheduleStrip {
                width: parent.width
                screen: root.screen
            }
        }
    }
}
