pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// What a scan has found: the one place where the user decides what goes.
FocusScope {
    id: root

    required property ReviewScreen screen

    readonly property real margin: Theme.pageMargin(width)

    Component.onCompleted: screen.open()

    StartNote {
        anchors.centerIn: parent
        visible: root.screen.isEmpty
        focus: root.screen.isEmpty
        symbol: root.screen.emptySymbol
        title: root.screen.emptyTitle
        line: root.screen.emptyLine
        buttonLabel: root.screen.scanAgainLabel
        onStarted: root.screen.scanAgain()
    }

    Item {
        anchors.fill: parent
        visible: !root.screen.isEmpty

        ScreenHeader {
            anchors.left: parent.left
            anchors.leftMargin: root.margin
            anchors.right: choices.left
            anchors.rightMargin: Theme.gapLarge
            y: 30
            title: root.screen.headline
            subtitle: root.screen.subtitle
        }
        Row {
            id: choices
            anchors.right: parent.right
            anchors.rightMargin: root.margin
            y: 36
            spacing: Theme.gapSmall

            SmallButton {
                id: safeOnly
                text: root.screen.safeOnlyLabel
                description: root.screen.safeOnlyTooltip
                onClicked: root.screen.selectSafeOnly()

                Tip {
                    text: root.screen.safeOnlyTooltip
                    visible: safeOnly.hovered
                }
            }
            SmallButton {
                text: root.screen.allLabel
                onClicked: root.screen.selectAll()
            }
            SmallButton {
                text: root.screen.noneLabel
                onClicked: root.screen.selectNone()
            }
        }

        Column {
            id: categories
            anchors.left: parent.left
            anchors.leftMargin: root.margin - 12
            y: 112
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

        Rectangle {
            id: divider
            anchors.left: categories.right
            anchors.leftMargin: Theme.gapWide
            anchors.top: categories.top
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
            anchors.top: categories.top
            anchors.bottom: bar.top
            anchors.bottomMargin: leftOut.height
            focus: !root.screen.isEmpty
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

        PickedBar {
            id: bar
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            margin: root.margin
            canClean: root.screen.canClean
            selectedSize: root.screen.selectedSize
            pickedLine: root.screen.pickedLine
            hint: root.screen.hint
            freeAfterSymbol: root.screen.freeAfterSymbol
            freeAfterLine: root.screen.freeAfterLine
            backLabel: root.screen.backLabel
            cleanUpSymbol: root.screen.cleanUpSymbol
            cleanUpLabel: root.screen.cleanUpLabel
            onBack: root.screen.back()
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
