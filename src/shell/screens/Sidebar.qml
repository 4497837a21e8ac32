pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// The sections, whether the program has the access that it needs, and the way to the About sheet.
Item {
    id: root

    required property WindowScreen screen

    Rectangle {
        anchors.fill: parent
        color: Theme.shade
    }

    BrandLogo {
        x: 24
        y: 28
        height: 30
    }

    Column {
        id: rows
        x: 14
        y: 84
        width: parent.width - 28
        spacing: Theme.gapTight
        Accessible.role: Accessible.PageTabList
        Accessible.name: "Tidewell"

        Keys.onUpPressed: step(false)
        Keys.onDownPressed: step(true)

        function step(isForward: bool) {
            const next = Window.activeFocusItem.nextItemInFocusChain(isForward)
            if (next.parent === rows)
                next.forceActiveFocus(isForward ? Qt.TabFocusReason : Qt.BacktabFocusReason)
        }

        Repeater {
            model: root.screen.rows

            SidebarRow {
                id: row

                required property int index
                required symbol
                required property string title
                required isActive
                required property sectionPalette accent

                width: rows.width
                label: title
                sectionPalette: accent
                onClicked: root.screen.openRow(index)
            }
        }
    }

    Column {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: 14
        spacing: Theme.gapSmall

        AccessCard {
            width: parent.width
            screen: root.screen
            visible: root.screen.showsAccess
        }
        Rectangle {
            visible: root.screen.showsAccess
            width: parent.width
            height: 1
            color: Theme.hairline
        }
        SidebarLink {
            width: parent.width
            symbol: "info.circle"
            text: "About Tidewell"
            onClicked: root.screen.showAbout()
        }
        SidebarLink {
            width: parent.width
            symbol: "power"
            text: root.screen.quitLabel
            onClicked: Qt.quit()
        }
    }
}
