pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// The Advisor: cleanups that the system's own tools carry out.
FocusScope {
    id: root

    required property AdvisorScreen screen

    readonly property real margin: Theme.pageMargin(width)
    readonly property bool isList: screen.phase === AdvisorScreen.List

    Component.onCompleted: screen.open()

    StartNote {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -8
        visible: root.screen.phase === AdvisorScreen.Idle
        focus: visible
        symbol: root.screen.noticeSymbol
        line: root.screen.noticeLine
        buttonLabel: root.screen.scanLabel
        onStarted: root.screen.scan()
    }
    ScanningNote {
        anchors.centerIn: parent
        visible: root.screen.phase === AdvisorScreen.Scanning
        symbol: root.screen.noticeSymbol
        title: root.screen.noticeLine
    }

    ScreenHeader {
        anchors.left: parent.left
        anchors.leftMargin: root.margin
        anchors.right: rescan.left
        anchors.rightMargin: Theme.gapLarge
        y: 30
        visible: root.isList
        title: root.screen.headline
        subtitle: root.screen.subtitle
    }
    SmallButton {
        id: rescan
        anchors.right: parent.right
        anchors.rightMargin: root.margin
        y: 36
        visible: root.isList
        focus: visible
        text: root.screen.rescanLabel
        onClicked: root.screen.scan()
    }
    Banner {
        id: message
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: root.margin
        anchors.rightMargin: root.margin
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.gapLarge
        visible: root.isList && root.screen.message !== ""
        symbol: root.screen.messageSymbol
        title: root.screen.message
        dismissSymbol: root.screen.dismissSymbol
        dismissLabel: root.screen.dismissLabel
        onDismissed: reason => {
            root.screen.dismissMessage()
            rescan.forceActiveFocus(reason)
        }
    }

    StartNote {
        anchors.centerIn: parent
        visible: root.screen.isAllClear
        symbol: root.screen.noticeSymbol
        title: root.screen.noticeTitle
        line: root.screen.noticeLine
    }

    CardList {
        id: cards
        anchors.fill: parent
        anchors.leftMargin: root.margin - leftMargin
        anchors.rightMargin: root.margin - rightMargin
        anchors.topMargin: 104
        visible: root.isList && !root.screen.isAllClear
        topMargin: 8
        spacing: Theme.gap
        roomBelow: message.room
        model: root.screen.cards
        Accessible.name: root.screen.headline
        onDeserted: reason => rescan.forceActiveFocus(reason)

        delegate: AdvisorCard {
            id: card

            required property int index
            required symbol
            required title
            required body
            required size
            required command
            required isWarning
            required buttonLabel
            required isBusy
            required property bool hasRuntimes

            width: cards.cardWidth
            onActed: root.screen.act(index)

            rows: Repeater {
                model: card.hasRuntimes ? root.screen.runtimes : null

                RuntimeRow {
                    required property int index
                    required title
                    required build
                    required size
                    required lastUsed
                    required usedBy
                    required isBusy
                    required isDeletable

                    width: parent ? (parent as Item).width : 0
                    deleteLabel: root.screen.deleteLabel
                    onDeletePressed: root.screen.askToDelete(index)
                }
            }
        }
    }

    AlertDialog {
        isWanted: root.screen.asksToDelete
        sectionPalette: root.Ambient.palette
        title: root.screen.questionTitle
        text: root.screen.questionText
        confirmLabel: root.screen.confirmLabel
        cancelLabel: root.screen.cancelLabel
        onConfirmed: root.screen.confirmDelete()
        onCancelled: root.screen.cancelDelete()
    }
}
