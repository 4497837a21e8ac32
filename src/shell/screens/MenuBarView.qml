pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// The disk's state at a glance, and the ways into the window.
FocusScope {
    id: root

    required property MenuBarScreen screen

    readonly property real padding: 16

    implicitWidth: 300
    implicitHeight: column.implicitHeight + 2 * padding
    focus: true
    Accessible.role: Accessible.Dialog
    Accessible.name: root.screen.title

    Keys.onEscapePressed: root.screen.close()

    GlowBox {
        anchors.fill: parent
        reach: 20
        cornerRadius: Theme.radius
        fillTop: Theme.panelTop(root.Ambient.palette.primary)
        fillBottom: Theme.panelBottom(root.Ambient.palette.primary)
        rim: Theme.panelRim
        glow: Theme.withOpacity(root.Ambient.palette.primary, 0.10)
        cornerLight: 0.6
    }

    Column {
        id: column
        x: root.padding
        y: root.padding
        width: parent.width - 2 * root.padding
        spacing: Theme.gapWide

        Item {
            width: parent.width
            height: health.height

            BrandLogo {
                anchors.verticalCenter: parent.verticalCenter
                asset: BrandLogo.Mark
                height: 26
            }
            HealthPill {
                id: health
                anchors.right: parent.right
                height: 26
                label: root.screen.healthLabel
                tint: root.screen.healthColor
            }
        }
        DiskRow {
            width: parent.width
            screen: root.screen
        }
        Grid {
            id: cards

            width: parent.width
            columns: 2
            columnSpacing: Theme.gapSmall
            rowSpacing: Theme.gapSmall

            Repeater {
                model: root.screen.cards

                QuickCard {
                    required property int index
                    required property string title
                    required symbol
                    required property sectionPalette accent

                    width: (cards.width - cards.columnSpacing) / cards.columns
                    text: title
                    Ambient.palette: accent
                    onClicked: root.screen.openCard(index)
                }
            }
        }
        PillButton {
            width: parent.width
            focus: true
            text: root.screen.scanLabel
            onClicked: root.screen.scan()
        }
        Pressable {
            id: openApp
            anchors.horizontalCenter: parent.horizontalCenter
            horizontalPadding: 10
            verticalPadding: 3
            focusGap: 1
            text: root.screen.openLabel
            onClicked: root.screen.openApp()

            contentItem: Label {
                text: openApp.text
                size: Theme.sizeNote
                weight: Font.Medium
                color: Theme.withOpacity(Theme.text, 0.62 + 0.38 * openApp.lift)
                Accessible.ignored: true
            }
        }
    }
}
