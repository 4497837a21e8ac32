pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// What a scan has found: the one place where the user decides what goes.
FocusScope {
    id: root

    required property ReviewScreen screen

    readonly property real margin: Theme.pageMargin(width)

    Component.onCompleted: screen.open()

    ToolPage {
        anchors.fill: parent
        focus: true
        phase: root.screen.isEmpty ? ToolPage.Nothing : ToolPage.Found
        isListFirst: true
        hasHeader: !root.screen.isEmpty
        symbol: "checkmark.seal.fill"
        title: root.screen.headline
        subtitle: "Green is safe and pre-ticked. Nothing goes until you hit Clean Up."
        nothingTitle: root.screen.emptyTitle
        nothingLine: root.screen.emptyLine
        note: root.screen.leftOutNote
        nothingLabel: "Scan Again"
        onLeftNothing: root.screen.scanAgain()

        actions: [
            SmallButton {
                id: safeOnly
                text: "Safe only"
                description: tip.text
                onClicked: root.screen.selectSafeOnly()

                Tip {
                    id: tip
                    text: "Select every safe item, deselect the review-gated ones"
                    visible: safeOnly.hovered
                }
            },
            SmallButton {
                text: "All"
                onClicked: root.screen.selectAll()
            },
            SmallButton {
                text: "None"
                onClicked: root.screen.selectNone()
            }
        ]

        FocusScope {
            Column {
                id: categories
                anchors.left: parent.left
                anchors.leftMargin: root.margin - 12
                y: Theme.gapSmall
                width: 258
                spacing: Theme.gapTight

                Repeater {
                    model: root.screen.categories

                    CategoryRow {
                        required property int index
                        required symbol
                        required title
                        required line
                        required mark
                        required isViewing

                        width: categories.width
                        onClicked: root.screen.viewCategory(index)
                        onToggled: root.screen.toggleCategory(index)
                    }
                }
            }

            PaneDivider {
                id: divider
                anchors.left: categories.right
                anchors.leftMargin: Theme.gapWide
                anchors.top: categories.top
                anchors.bottom: bar.top
            }

            ItemList {
                anchors.left: divider.right
                anchors.leftMargin: Theme.gapLarge
                anchors.right: parent.right
                anchors.rightMargin: root.margin - 12
                anchors.top: categories.top
                anchors.bottom: leftOut.top
                focus: true
                symbol: root.screen.viewingSymbol
                title: root.screen.viewingTitle
                model: root.screen.chips
                onSmartPicked: root.screen.selectSmartInView()
                onAllPicked: root.screen.selectAllInView()
                onNonePicked: root.screen.selectNoneInView()
                onToggled: row => root.screen.toggleChip(row)
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
                hint: "Nothing picked yet. Tap rows or hit “Safe only”."
                freeAfterLine: root.screen.freeAfterLine
                backLabel: "Back"
                onBack: root.screen.back()
                onCleanUp: root.screen.cleanUp()
            }
        }
    }
}
