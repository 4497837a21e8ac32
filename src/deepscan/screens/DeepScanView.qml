pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// The Deep Scan tool: what is really big, sorted by what may be done with it.
FocusScope {
    id: root

    required property DeepScanScreen screen

    readonly property real margin: Theme.pageMargin(width)

    Component.onCompleted: screen.open()

    StartNote {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -8
        visible: root.screen.isStart
        focus: root.screen.isStart
        symbol: root.screen.placardSymbol
        title: root.screen.title
        line: root.screen.subtitle
        buttonSymbol: root.screen.placardSymbol
        buttonLabel: root.screen.scanLabel
        onStarted: root.screen.scan()
    }

    ScreenHeader {
        id: header
        anchors.left: parent.left
        anchors.leftMargin: root.margin
        anchors.right: rescan.left
        anchors.rightMargin: Theme.gapLarge
        y: 30
        visible: !root.screen.isStart
        title: root.screen.title
        subtitle: root.screen.subtitle
    }
    SmallButton {
        id: rescan
        anchors.right: parent.right
        anchors.rightMargin: root.margin
        y: 36
        visible: root.screen.isList || root.screen.foundNothing
        focus: visible
        text: root.screen.scanLabel
        onClicked: root.screen.scan()
    }

    ScanningNote {
        anchors.centerIn: parent
        visible: root.screen.isScanning
        symbol: root.screen.placardSymbol
        title: root.screen.placardTitle
        line: root.screen.placardLine
        progress: root.screen.progress
    }
    StartNote {
        anchors.centerIn: parent
        visible: root.screen.foundNothing
        symbol: root.screen.placardSymbol
        title: root.screen.placardTitle
        line: root.screen.placardLine
    }

    Item {
        anchors.fill: parent
        anchors.topMargin: 104
        visible: root.screen.isList

        Banner {
            id: banner
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.leftMargin: root.margin
            anchors.rightMargin: root.margin
            anchors.bottom: parent.bottom
            anchors.bottomMargin: Math.max(Theme.gapLarge, leftOut.height + Theme.gapSmall)
            visible: root.screen.hasBanner
            symbol: root.screen.bannerSymbol
            tint: root.screen.bannerColor
            title: root.screen.bannerText
            undoLabel: root.screen.undoLabel
            onUndone: root.screen.undo()
        }

        Column {
            id: rail
            anchors.left: parent.left
            anchors.leftMargin: root.margin - 12
            y: 8
            width: 240
            spacing: Theme.gapTight

            Repeater {
                model: root.screen.rail

                RailRow {
                    required property int index
                    required symbol
                    required title
                    required line
                    required isViewing
                    required symbolColor
                    required symbolBackground

                    width: rail.width
                    onClicked: root.screen.viewBucket(index)
                }
            }
        }

        Rectangle {
            id: divider
            anchors.left: rail.right
            anchors.leftMargin: Theme.gapWide
            anchors.top: rail.top
            anchors.bottom: parent.bottom
            anchors.bottomMargin: Theme.gapHuge
            width: 1
            color: Theme.hairline
        }

        Label {
            id: advice
            anchors.left: divider.right
            anchors.leftMargin: Theme.gapLarge
            anchors.right: parent.right
            anchors.rightMargin: root.margin
            anchors.top: rail.top
            anchors.topMargin: Theme.gapTight
            text: root.screen.bucketSubtitle
            size: Theme.sizeControl
            lineHeight: 1.2
            color: Theme.secondary
            wrapMode: Text.Wrap
        }
        CardList {
            id: list
            anchors.left: divider.right
            anchors.leftMargin: Theme.gapWide
            anchors.right: parent.right
            anchors.rightMargin: root.margin - 12
            anchors.top: advice.bottom
            anchors.topMargin: Theme.gapSmall
            anchors.bottom: parent.bottom
            anchors.bottomMargin: leftOut.height > 0 ? leftOut.height + Theme.gapSmall : 0
            roomBelow: banner.room
            model: root.screen.cards
            Accessible.name: root.screen.bucketTitle
            onDeserted: reason => rescan.forceActiveFocus(reason)

            delegate: BigItemCard {
                required property int index
                required symbol
                required title
                required place
                required size
                required badge
                required badgeColor
                required note
                required revealSymbol
                required revealHelp
                required trashHelp
                required commandLabel
                required commandHelp
                required putBackLabel
                required putBackHelp

                width: list.cardWidth
                onRevealed: root.screen.reveal(index)
                onTrashed: root.screen.trash(index)
                onCopied: root.screen.copyCommand(index)
                onReturned: root.screen.putBack(index)
            }
        }
    }

    LeftOutNote {
        id: leftOut
        anchors.left: parent.left
        anchors.leftMargin: root.screen.isList ? divider.x + Theme.gapLarge : root.margin
        anchors.right: parent.right
        anchors.rightMargin: root.margin
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.gapSmall
        text: root.screen.isList || root.screen.foundNothing ? root.screen.leftOutNote : ""
    }

    AlertDialog {
        isWanted: root.screen.asksToTrash
        sectionPalette: root.Ambient.palette
        title: root.screen.questionTitle
        text: root.screen.questionText
        confirmLabel: root.screen.confirmLabel
        cancelLabel: root.screen.cancelLabel
        onConfirmed: root.screen.confirmTrash()
        onCancelled: root.screen.cancelTrash()
    }
}
