pragma ComponentBehavior: Bound
import QtQuick
import Tidewell

/// The home folder as a picture: the way to the folder that is shown, its cells, what is in hand and
/// what may be done with it, and what the colours say.
FocusScope {
    id: root

    required property DiskMapScreen screen
    property real margin

    signal trashed()

    Keys.onPressed: event => {
        switch (event.key) {
        case Qt.Key_Left: root.screen.step(-1, 0); break
        case Qt.Key_Right: root.screen.step(1, 0); break
        case Qt.Key_Up: root.screen.step(0, -1); break
        case Qt.Key_Down: root.screen.step(0, 1); break
        case Qt.Key_Return:
        case Qt.Key_Enter: root.screen.enter(); break
        case Qt.Key_Escape:
        case Qt.Key_Backspace:
            event.accepted = root.screen.leave()
            return
        default: return
        }
        event.accepted = picture.activeFocus
    }

    Row {
        id: way
        anchors.left: parent.left
        anchors.leftMargin: root.margin - 8
        y: 0
        height: 26
        clip: true

        Repeater {
            model: root.screen.crumbs

            Row {
                id: crumb

                required property int index
                required property string name
                required property bool isLast

                height: 26

                Symbol {
                    anchors.verticalCenter: parent.verticalCenter
                    visible: crumb.index > 0
                    symbol: "chevron.right"
                    size: Theme.symbolSmall
                    tint: Theme.faint
                }
                Pressable {
                    id: step
                    height: 26
                    horizontalPadding: 8
                    cornerRadius: Theme.radiusTag
                    text: crumb.name
                    enabled: !crumb.isLast
                    opacity: 1
                    onClicked: root.screen.goToCrumb(crumb.index)

                    background: Rectangle {
                        radius: Theme.radiusTag
                        color: Theme.hoverFill
                        opacity: step.lift
                    }
                    contentItem: Label {
                        text: crumb.name
                        width: Math.min(implicitWidth, 220)
                        size: Theme.sizeControl
                        weight: crumb.isLast ? Font.DemiBold : Font.Medium
                        color: crumb.isLast ? Theme.text : Theme.secondary
                        verticalAlignment: Text.AlignVCenter
                        elide: Text.ElideMiddle
                        Accessible.ignored: true
                    }
                }
            }
        }
    }

    TreemapItem {
        id: picture
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: root.margin
        anchors.rightMargin: root.margin
        anchors.top: way.bottom
        anchors.topMargin: Theme.gapSmall
        anchors.bottom: hand.top
        anchors.bottomMargin: Theme.gap
        tiles: root.screen.tiles
        activeFocusOnTab: true
        focus: true
        onWidthChanged: root.screen.resize(width, height)
        onHeightChanged: root.screen.resize(width, height)
        onPainted: isPassage => {
            if (!isPassage)
                return
            if (root.Motion.hasPassages)
                going.restart()
            else
                passage = 1
        }
        Accessible.role: Accessible.Tree
        Accessible.name: "Map of the home folder"
        Accessible.description: root.screen.name + ", " + root.screen.figure + ". " + root.screen.verdict
        Accessible.focusable: true

        NumberAnimation {
            id: going
            target: picture
            property: "passage"
            from: 0
            to: 1
            duration: 250
            easing.type: Easing.OutCubic
        }
        Connections {
            target: root.screen as QtObject
            function onGoesIn(area: rect) { picture.goInto(area) }
            function onGoesOut(area: rect) { picture.goOutOf(area) }
        }

        Repeater {
            model: root.screen.branches

            Item {
                id: branch

                required property int index
                required property string name
                required property string words
                required property rect area

                x: area.x
                y: area.y
                width: area.width
                height: area.height
                Accessible.role: Accessible.TreeItem
                Accessible.name: name
                Accessible.description: words
                Accessible.onPressAction: root.screen.goToBranch(index)
            }
        }

        component Outline: Rectangle {
            property rect area

            visible: area.width > 0 && picture.passage >= 1
            x: area.x
            y: area.y
            width: area.width
            height: area.height
            radius: 5
            color: "transparent"
            Accessible.ignored: true
        }

        Outline {
            area: root.screen.pointedArea
            border.width: 1
            border.color: Theme.withOpacity(Theme.text, 0.7)
        }
        Outline {
            area: root.screen.handArea
            border.width: 2
            border.color: Theme.text
        }
        FocusRing {
            cornerRadius: 4
            gap: 0
            visible: picture.activeFocus && root.screen.handArea.width === 0
        }

        MouseArea {
            id: pointer
            anchors.fill: parent
            hoverEnabled: true
            onPositionChanged: event => root.screen.point(event.x, event.y)
            onExited: root.screen.pointNowhere()
            onClicked: event => {
                picture.forceActiveFocus(Qt.MouseFocusReason)
                root.screen.press(event.x, event.y)
            }

            Item {
                x: Math.min(Math.max(pointer.mouseX, 160), pointer.width - 160)
                y: pointer.mouseY - 6

                Tip {
                    text: root.screen.pointedName
                    line: root.screen.pointedWords
                    visible: pointer.containsMouse && root.screen.pointedArea.width > 0
                }
            }
        }
    }

    Surface {
        id: hand
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: root.margin
        anchors.rightMargin: root.margin
        anchors.bottom: legend.top
        anchors.bottomMargin: Theme.gap
        height: 68
        Accessible.role: Accessible.StatusBar
        Accessible.name: root.screen.name + ", " + root.screen.figure
        Accessible.description: root.screen.verdict + ". " + root.screen.sentence

        IconChip {
            id: icon
            x: 16
            anchors.verticalCenter: parent.verticalCenter
            symbol: root.screen.symbol
            tint: root.screen.verdictColor
        }
        Column {
            anchors.left: icon.right
            anchors.leftMargin: Theme.gap
            anchors.right: buttons.left
            anchors.rightMargin: Theme.gapLarge
            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.gapHair

            Row {
                width: parent.width
                spacing: Theme.gapSmall

                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    width: Math.min(implicitWidth,
                                    parent.width - figure.width - mark.width - 2 * parent.spacing)
                    text: root.screen.name
                    size: Theme.sizeRow
                    weight: Font.DemiBold
                    elide: Text.ElideMiddle
                    Accessible.ignored: true
                }
                Label {
                    id: figure
                    anchors.verticalCenter: parent.verticalCenter
                    text: root.screen.figure
                    size: Theme.sizeNote
                    color: Theme.secondary
                    Accessible.ignored: true
                }
                Tag {
                    id: mark
                    anchors.verticalCenter: parent.verticalCenter
                    text: root.screen.verdict
                    tint: root.screen.verdictColor
                }
            }
            Label {
                width: Math.min(parent.width, Theme.longestLine)
                visible: text !== ""
                text: root.screen.sentence
                size: Theme.sizeNote
                color: Theme.secondary
                wrapMode: Text.Wrap
                maximumLineCount: 2
                elide: Text.ElideRight
                Accessible.ignored: true
            }
        }
        Row {
            id: buttons
            anchors.right: parent.right
            anchors.rightMargin: Theme.gapWide
            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.gapSmall

            SmallButton {
                anchors.verticalCenter: parent.verticalCenter
                visible: text !== ""
                text: root.screen.showLabel
                onClicked: root.screen.showRow()
            }
            IconButton {
                anchors.verticalCenter: parent.verticalCenter
                symbol: "magnifyingglass"
                text: root.screen.revealHelp
                description: root.screen.name
                onClicked: root.screen.reveal()
            }
            IconButton {
                anchors.verticalCenter: parent.verticalCenter
                visible: root.screen.trashHelp !== ""
                symbol: "trash"
                tint: Theme.destructive
                text: root.screen.trashHelp
                onClicked: root.trashed()
            }
        }
    }

    Flow {
        id: legend
        anchors.left: parent.left
        anchors.leftMargin: root.margin - 8
        anchors.right: parent.right
        anchors.rightMargin: root.margin - 8
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.gapWide
        spacing: Theme.gapHair

        Repeater {
            model: root.screen.legend

            Pressable {
                id: row

                required property int index
                required property string title
                required property string symbol
                required property color tint
                required property string size
                required property bool isChosen

                height: 26
                horizontalPadding: 8
                cornerRadius: height / 2
                text: title
                description: size
                Accessible.checkable: true
                Accessible.checked: isChosen
                onClicked: root.screen.chooseVerdict(index)

                background: Rectangle {
                    radius: height / 2
                    color: Theme.withOpacity(row.tint, (row.isChosen ? 0.24 : 0) + 0.10 * row.lift)
                    border.width: row.isChosen ? 1 : 0
                    border.color: Theme.withOpacity(row.tint, 0.6)
                }
                contentItem: Row {
                    spacing: 5

                    Symbol {
                        anchors.verticalCenter: parent.verticalCenter
                        symbol: row.symbol
                        size: Theme.symbolSmall
                        tint: row.tint
                    }
                    Label {
                        anchors.verticalCenter: parent.verticalCenter
                        text: row.title
                        size: Theme.sizeDetail
                        weight: Font.Medium
                        Accessible.ignored: true
                    }
                    Label {
                        anchors.verticalCenter: parent.verticalCenter
                        text: row.size
                        size: Theme.sizeDetail
                        color: Theme.secondary
                        Accessible.ignored: true
                    }
                }
            }
        }
    }
}
