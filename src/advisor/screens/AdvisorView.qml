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

    ToolPage {
        anchors.fill: parent
        focus: true
        phase: root.screen.phase === AdvisorScreen.Idle ? ToolPage.Start
             : root.screen.phase === AdvisorScreen.Scanning ? ToolPage.Scanning
             : root.screen.isAllClear ? ToolPage.Nothing : ToolPage.Found
        hasHeader: root.isList
        symbol: root.screen.noticeSymbol
        title: root.screen.headline
        subtitle: root.screen.subtitle
        startLine: root.screen.noticeLine
        startLabel: root.screen.scanLabel
        onStarted: root.screen.scan()
        scanningTitle: root.screen.noticeLine
        nothingTitle: root.screen.noticeTitle
        nothingLine: root.screen.noticeLine

        actions: SmallButton {
            id: rescan
            focus: root.isList
            text: "Rescan"
            onClicked: root.screen.scan()
        }

        CardList {
            id: cards
            anchors.fill: parent
            anchors.leftMargin: root.margin - leftMargin
            anchors.rightMargin: root.margin - rightMargin
            topMargin: Theme.gapSmall
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
                        onDeletePressed: root.screen.askToDelete(index)
                    }
                }
            }
        }
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
        symbol: "info.circle.fill"
        title: root.screen.message
        isDismissible: true
        onDismissed: reason => {
            root.screen.dismissMessage()
            rescan.forceActiveFocus(reason)
        }
    }

    AlertDialog {
        isWanted: root.screen.asksToDelete
        sectionPalette: root.Ambient.palette
        title: "Delete this Simulator runtime?"
        text: root.screen.questionText
        confirmLabel: "Delete Runtime"
        cancelLabel: "Cancel"
        onConfirmed: root.screen.confirmDelete()
        onCancelled: root.screen.cancelDelete()
    }
}
