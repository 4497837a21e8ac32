pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// How full the memory is, and which applications fill it.
ScrollArea {
    id: root

    required property PerformanceScreen screen
    required property real margin

    /// What the keyboard was at has gone, and nothing is left near it: the reason to take it
    /// elsewhere.
    signal deserted(int reason)

    contentHeight: column.y + column.height + 26

    Column {
        id: column
        x: root.margin
        y: 24
        width: parent.width - 2 * root.margin
        spacing: 14

        Banner {
            width: parent.width
            visible: root.screen.message !== ""
            symbol: root.screen.messageSymbol
            title: root.screen.message
            dismissSymbol: root.screen.dismissSymbol
            dismissLabel: root.screen.dismissLabel
            onDismissed: {
                const control = Window.activeFocusItem as Pressable
                root.screen.dismissMessage()
                root.deserted(control ? control.focusReason : Qt.OtherFocusReason)
            }
        }
        MemoryCard {
            width: parent.width
            screen: root.screen
        }
        Label {
            topPadding: 10
            text: root.screen.appsHeading
            size: 12
            weight: Font.DemiBold
            color: Theme.secondary
            Accessible.role: Accessible.Heading
        }
        ButtonRows {
            id: rows
            width: parent.width
            spacing: 4
            model: root.screen.apps
            Accessible.name: root.screen.appsHeading
            onDeserted: reason => root.deserted(reason)

            delegate: AppMemoryRow {
                required property int index
                required name
                required fraction
                required size
                required isBusy

                width: rows.width
                quitLabel: root.screen.quitLabel
                onQuit: root.screen.quit(index)
            }
        }
    }
}
