pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// What Dev Mode has found, one technology at a time.
FocusScope {
    id: root

    required property DevModeScreen screen
    required property real margin

    ScrollArea {
        id: railArea
        anchors.left: parent.left
        anchors.leftMargin: root.margin - 12
        anchors.bottom: bar.top
        anchors.top: parent.top
        anchors.topMargin: Theme.gapSmall
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
            }
        }
    }

    PaneDivider {
        id: divider
        anchors.left: railArea.right
        anchors.leftMargin: Theme.gapSmall
        anchors.top: parent.top
        anchors.topMargin: Theme.gapSmall
        anchors.bottom: bar.top
    }

    ItemList {
        anchors.left: divider.right
        anchors.leftMargin: Theme.gapLarge
        anchors.right: parent.right
        anchors.rightMargin: root.margin - 12
        anchors.top: parent.top
        anchors.topMargin: Theme.gapSmall
        anchors.bottom: leftOut.top
        visible: !root.screen.isViewingModels
        focus: visible
        symbol: root.screen.viewingSymbol
        title: root.screen.viewingTitle
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
        y: Theme.gap
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
        anchors.bottom: leftOut.top
        visible: root.screen.isViewingModels
        model: root.screen.models
        Accessible.name: root.screen.viewingTitle

        delegate: ModelStoreRow {
            required property int index
            required title
            required size
            required note

            width: stores.cardWidth
            onRevealed: root.screen.reveal(index)
        }
    }

    LeftOutNote {
        id: leftOut
        anchors.left: divider.right
        anchors.leftMargin: Theme.gapLarge
        anchors.right: parent.right
        anchors.rightMargin: root.margin
        anchors.bottom: bar.top
        text: root.screen.leftOutNote
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
        onCleanUp: root.screen.cleanUp()
    }
}
