pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// What Dev Mode has found, one technology at a time.
FocusScope {
    id: root

    required property DevModeScreen screen

    readonly property real margin: Theme.pageMargin(width)

    ScreenHeader {
        anchors.left: parent.left
        anchors.leftMargin: root.margin
        anchors.right: choices.left
        anchors.rightMargin: Theme.gapLarge
        y: 30
        title: root.screen.headline
        subtitle: root.screen.reviewSubtitle
    }
    Row {
        id: choices
        anchors.right: parent.right
        anchors.rightMargin: root.margin
        y: 36
        spacing: Theme.gapSmall

        SmallButton {
            visible: !root.screen.isEmpty
            text: root.screen.safeOnlyLabel
            onClicked: root.screen.selectSafeOnly()
        }
        SmallButton {
            visible: !root.screen.isEmpty
            text: root.screen.allLabel
            onClicked: root.screen.selectAll()
        }
        SmallButton {
            visible: !root.screen.isEmpty
            text: root.screen.noneLabel
            onClicked: root.screen.selectNone()
        }
        SmallButton {
            focus: root.screen.isEmpty
            text: root.screen.rescanLabel
            onClicked: root.screen.scan()
        }
    }

    StartNote {
        anchors.centerIn: parent
        visible: root.screen.isEmpty
        symbol: root.screen.emptySymbol
        title: root.screen.emptyTitle
        line: root.screen.emptyLine
    }

    Item {
        anchors.fill: parent
        anchors.topMargin: 112
        visible: !root.screen.isEmpty

        ScrollArea {
            id: railArea
            anchors.left: parent.left
            anchors.leftMargin: root.margin - 12
            anchors.bottom: bar.top
            anchors.top: parent.top
            width: 268
            contentHeight: rail.height + 24

            Column {
                id: rail
                width: railArea.width - 12
                spacing: Theme.gapTight

                Repeater {
                    model: root.screen.rail

                    RailRow {
                        required property int index
                        required symbol
                        required title
                        required line
                        required isViewing

                        width: rail.width
                        onClicked: root.screen.viewGroup(index)
                    }
                }
                Item { width: 1; height: 8 }
                NeverTouchesCard {
                    width: rail.width
                    symbol: root.screen.neverTouchesSymbol
                    title: root.screen.neverTouchesTitle
                    lines: root.screen.neverTouchesLines
                }
            }
        }

        Rectangle {
            id: divider
            anchors.left: railArea.right
            anchors.leftMargin: Theme.gapSmall
            anchors.top: parent.top
            anchors.bottom: bar.top
            anchors.bottomMargin: Theme.gap
            width: 1
            color: Theme.hairline
        }

        ItemList {
            anchors.left: divider.right
            anchors.leftMargin: Theme.gapLarge
            anchors.right: parent.right
            anchors.rightMargin: root.margin - 12
            anchors.top: parent.top
            anchors.bottom: bar.top
            anchors.bottomMargin: leftOut.height
            visible: !root.screen.isViewingModels
            focus: visible && !root.screen.isEmpty
            symbol: root.screen.viewingSymbol
            title: root.screen.viewingTitle
            smartLabel: root.screen.smartLabel
            allLabel: root.screen.allLabel
            noneLabel: root.screen.noneLabel
            model: root.screen.chips
            onSmartPicked: root.screen.selectSmartInView()
            onAllPicked: root.screen.selectAllInView()
            onNonePicked: root.screen.selectNoneInView()
            onToggled: row => root.screen.toggleChip(row)
        }

        Label {
            id: modelsLine
            anchors.left: divider.right
            anchors.leftMargin: Theme.gapLarge
            anchors.right: parent.right
            anchors.rightMargin: root.margin
            y: 4
            visible: root.screen.isViewingModels
            text: root.screen.modelsLine
            size: Theme.sizeControl
            lineHeight: 1.2
            color: Theme.secondary
            wrapMode: Text.Wrap
        }
        CardList {
            id: stores
            anchors.left: divider.right
            anchors.leftMargin: Theme.gapWide
            anchors.right: parent.right
            anchors.rightMargin: root.margin - 12
            anchors.top: modelsLine.bottom
            anchors.topMargin: Theme.gapSmall
            anchors.bottom: bar.top
            anchors.bottomMargin: leftOut.height
            visible: root.screen.isViewingModels
            model: root.screen.models
            Accessible.name: root.screen.viewingTitle

            delegate: ModelStoreRow {
                required property int index
                required title
                required size
                required note

                width: stores.cardWidth
                symbol: root.screen.modelSymbol
                revealLabel: root.screen.revealLabel
                revealSymbol: root.screen.revealSymbol
                onRevealed: root.screen.reveal(index)
            }
        }

        PickedBar {
            id: bar
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            margin: root.margin
            canClean: root.screen.canClean
            selectedSize: root.screen.selectedSize
            pickedLine: root.screen.pickedLine
            cleanUpSymbol: root.screen.cleanUpSymbol
            cleanUpLabel: root.screen.cleanUpLabel
            onCleanUp: root.screen.cleanUp()
        }
    }

    LeftOutNote {
        id: leftOut
        anchors.left: parent.left
        anchors.leftMargin: root.screen.isEmpty ? root.margin : divider.x + Theme.gapLarge
        anchors.right: parent.right
        anchors.rightMargin: root.margin
        anchors.bottom: parent.bottom
        anchors.bottomMargin: root.screen.isEmpty ? Theme.gapWide : bar.height
        text: root.screen.leftOutNote
    }
}
