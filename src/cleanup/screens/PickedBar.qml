import QtQuick
import Tidewell

/// What is picked, what it would win, and the button that starts the clean.
Item {
    id: root

    property real margin: 34
    property bool canClean: false
    property string selectedSize
    property string pickedLine
    /// Said instead of both while nothing is picked; empty: they stay.
    property string hint
    property string freeAfterLine
    /// Empty: there is no such button.
    property string backLabel

    signal back()
    signal cleanUp()

    readonly property bool showsHint: !canClean && hint !== ""

    implicitHeight: 88
    Component.onCompleted: settling.begin()
    onVisibleChanged: settling.begin()

    Settling { id: settling }

    Rectangle {
        anchors.fill: parent
        color: Theme.shade
    }
    Rectangle {
        width: parent.width
        height: 1
        color: Theme.hairline
    }

    Label {
        anchors.left: parent.left
        anchors.leftMargin: root.margin
        anchors.right: buttons.left
        anchors.rightMargin: Theme.gapLarge
        anchors.verticalCenter: parent.verticalCenter
        visible: root.showsHint
        text: root.hint
        size: Theme.sizeText
        color: Theme.secondary
        elide: Text.ElideRight
    }

    Row {
        anchors.left: parent.left
        anchors.leftMargin: root.margin
        anchors.verticalCenter: parent.verticalCenter
        visible: !root.showsHint
        spacing: Theme.gapLarge

        Column {
            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.gapHair

            FigureText {
                text: root.selectedSize
                size: Theme.sizeTotal
                weight: Font.Bold
            }
            Label {
                text: root.pickedLine
                size: Theme.sizeNote
                color: Theme.secondary
            }
        }
        InfoPill {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.freeAfterLine !== ""

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                symbol: "arrow.up.right"
                size: Theme.symbolSmall
                tint: Ambient.palette.primary
            }
            Label {
                anchors.verticalCenter: parent.verticalCenter
                text: root.freeAfterLine
                size: Theme.sizeControl
                weight: Font.Medium
            }
        }
    }

    Row {
        id: buttons
        anchors.right: parent.right
        anchors.rightMargin: root.margin
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.gap

        GhostPillButton {
            anchors.verticalCenter: parent.verticalCenter
            visible: text !== ""
            text: root.backLabel
            onClicked: root.back()
        }
        PillButton {
            anchors.verticalCenter: parent.verticalCenter
            enabled: root.canClean
            symbol: "sparkles"
            text: "Clean Up"
            onClicked: {
                if (settling.isOver())  // what goes does not come back
                    root.cleanUp()
            }
        }
    }
}
