pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// How full the memory is, and which applications fill it.
Item {
    id: root

    required property PerformanceScreen screen
    required property real margin

    /// What the keyboard was at has gone, and nothing is left near it: the reason to take it
    /// elsewhere.
    signal deserted(int reason)

    Column {
        id: column
        x: root.margin
        y: Theme.gapSmall
        width: parent.width - 2 * root.margin
        spacing: Theme.gap

        MemoryCard {
            width: parent.width
            screen: root.screen
        }
        Label {
            topPadding: 10
            visible: list.count > 0
            text: root.screen.appsHeading
            size: Theme.sizeNote
            weight: Font.DemiBold
            color: Theme.secondary
            Accessible.role: Accessible.Heading
        }
    }
    StartNote {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.verticalCenter: list.verticalCenter
        visible: list.count === 0
        symbol: "speedometer"
        title: "Nothing is running"
        line: "Apps that you open show up here, with the memory that they use."
    }
    Banner {
        id: banner
        x: root.margin
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.gapLarge
        width: parent.width - 2 * root.margin
        visible: root.screen.message !== ""
        symbol: "info.circle.fill"
        title: root.screen.message
        isDismissible: true
        onDismissed: reason => {
            root.screen.dismissMessage()
            root.deserted(reason)
        }
    }
    CardList {
        id: list
        anchors.left: parent.left
        anchors.leftMargin: root.margin - leftMargin
        anchors.right: parent.right
        anchors.rightMargin: root.margin - rightMargin
        anchors.top: column.bottom
        anchors.topMargin: Theme.gapSmall
        anchors.bottom: parent.bottom
        spacing: Theme.gapTight
        roomBelow: banner.room
        model: root.screen.apps
        Accessible.name: root.screen.appsHeading
        onDeserted: reason => root.deserted(reason)

        delegate: AppMemoryRow {
            required property int index
            required icon
            required name
            required fraction
            required size
            required isBusy

            width: list.cardWidth
            onQuit: root.screen.quit(index)
        }
    }
}
