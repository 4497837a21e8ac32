import QtQuick
import Tidewell

/// What is picked, what it would win, and the button that starts the clean.
Item {
    id: root

    required property ReviewScreen screen
    property real margin: 34

    implicitHeight: 88

    Rectangle {
        anchors.fill: parent
        color: Qt.rgba(0, 0, 0, 0.24)
    }
    Rectangle {
        width: parent.width
        height: 1
        color: Qt.rgba(1, 1, 1, 0.07)
    }

    Label {
        anchors.left: parent.left
        anchors.leftMargin: root.margin
        anchors.right: buttons.left
        anchors.rightMargin: 20
        anchors.verticalCenter: parent.verticalCenter
        visible: !root.screen.canClean
        text: root.screen.hint
        size: 13
        color: Theme.secondary
        elide: Text.ElideRight
    }

    Row {
        anchors.left: parent.left
        anchors.leftMargin: root.margin
        anchors.verticalCenter: parent.verticalCenter
        visible: root.screen.canClean
        spacing: 22

        Column {
            anchors.verticalCenter: parent.verticalCenter
            spacing: 1

            FigureText {
                text: root.screen.selectedSize
                size: 23
                weight: Font.Bold
            }
            Label {
                text: root.screen.pickedLine
                size: 12
                color: Theme.secondary
            }
        }
        InfoPill {
            anchors.verticalCenter: parent.verticalCenter

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                symbol: root.screen.freeAfterSymbol
                size: 15
                tint: Ambient.palette.primary
            }
            Label {
                anchors.verticalCenter: parent.verticalCenter
                text: root.screen.freeAfterLine
                size: 12.5
                weight: Font.Medium
            }
        }
    }

    Row {
        id: buttons
        anchors.right: parent.right
        anchors.rightMargin: root.margin
        anchors.verticalCenter: parent.verticalCenter
        spacing: 12

        GhostPillButton {
            anchors.verticalCenter: parent.verticalCenter
            text: root.screen.backLabel
            onClicked: root.screen.back()
        }
        PillButton {
            anchors.verticalCenter: parent.verticalCenter
            enabled: root.screen.canClean
            symbol: root.screen.cleanUpSymbol
            text: root.screen.cleanUpLabel
            onClicked: root.screen.cleanUp()
        }
    }
}
