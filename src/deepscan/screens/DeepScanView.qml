pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// The Deep Scan tool: what is really big, sorted by what may be done with it.
FocusScope {
    id: root

    required property DeepScanScreen screen

    readonly property real margin: Theme.pageMargin(width)
    readonly property bool showsMap: screen.showsMap
    readonly property int mapPhase: screen.map.isMapping ? ToolPage.Scanning
                                  : screen.map.isNothing ? ToolPage.Nothing
                                  : screen.map.isShown ? ToolPage.Found : ToolPage.Scanning

    Component.onCompleted: screen.open()

    ToolPage {
        anchors.fill: parent
        focus: true
        phase: root.showsMap ? root.mapPhase
             : root.screen.isStart ? ToolPage.Start
             : root.screen.isScanning ? ToolPage.Scanning
             : root.screen.foundNothing ? ToolPage.Nothing : ToolPage.Found
        symbol: root.screen.placardSymbol || "scope"
        title: root.screen.title
        subtitle: root.showsMap ? root.screen.map.summary : root.screen.subtitle
        startTitle: root.screen.title
        startLine: root.screen.subtitle
        startSymbol: root.screen.placardSymbol
        startLabel: root.screen.scanLabel
        onStarted: root.screen.scan()
        scanningTitle: root.showsMap ? "Measuring your home folder…" : root.screen.placardTitle
        scanningLine: root.showsMap ? root.screen.map.metLine : root.screen.placardLine
        progress: root.showsMap ? -1 : root.screen.progress
        nothingTitle: root.showsMap ? "Nothing to draw" : root.screen.placardTitle
        note: root.showsMap ? "" : root.screen.leftOutNote
        nothingLine: root.showsMap ? "Your home folder is empty." : root.screen.placardLine

        firstAction: rescan
        actions: [
            SegmentedPicker {
                visible: !root.screen.isStart && !root.screen.isScanning
                model: root.screen.faces
                onChosen: row => root.screen.chooseFace(row)
            },
            SmallButton {
                id: rescan
                anchors.verticalCenter: parent?.verticalCenter
                visible: root.showsMap || root.screen.isList || root.screen.foundNothing
                focus: visible
                text: root.showsMap ? root.screen.map.isMapping ? "Stop" : "Draw Again" : root.screen.scanLabel
                onClicked: {
                    if (!root.showsMap)
                        root.screen.scan()
                    else if (root.screen.map.isMapping)
                        root.screen.stopMap()
                    else
                        root.screen.map.make()
                }
            }
        ]

        Item {
            DiskMapView {
                anchors.fill: parent
                anchors.bottomMargin: banner.visible ? banner.height + Theme.gap : 0
                opacity: root.showsMap ? 1 : 0
                visible: opacity > 0
                enabled: root.showsMap
                screen: root.screen.map
                margin: root.margin
                onTrashed: root.screen.trashFromMap()

                Fade on opacity {}
            }
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

            Item {
                id: list
                anchors.fill: parent
                opacity: root.showsMap ? 0 : 1
                visible: opacity > 0
                enabled: !root.showsMap

                Fade on opacity {}

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

                PaneDivider {
                    id: divider
                    anchors.left: rail.right
                    anchors.leftMargin: Theme.gapWide
                    anchors.top: rail.top
                    anchors.bottom: parent.bottom
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
                LeftOutNote {
                    id: leftOut
                    anchors.left: divider.right
                    anchors.leftMargin: Theme.gapLarge
                    anchors.right: parent.right
                    anchors.rightMargin: root.margin
                    anchors.bottom: parent.bottom
                    anchors.bottomMargin: visible ? Theme.gapSmall : 0
                    text: root.screen.leftOutNote
                }
                CardList {
                    id: cards
                    anchors.left: divider.right
                    anchors.leftMargin: Theme.gapWide
                    anchors.right: parent.right
                    anchors.rightMargin: root.margin - 12
                    anchors.top: advice.bottom
                    anchors.topMargin: Theme.gapSmall
                    anchors.bottom: leftOut.top
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
                        required putBackLabel
                        required putBackHelp
                        required commandLabel
                        required commandHelp

                        width: cards.cardWidth
                        onRevealed: root.screen.reveal(index)
                        onReturned: root.screen.putBack(index)
                        onTrashed: root.screen.trash(index)
                        onCopied: root.screen.copyCommand(index)
                    }
                }
            }
        }
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
