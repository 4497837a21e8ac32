import QtQuick
import Tidewell

/// One big item: what it is, what removing it would cost, and what may be done with it.
Rectangle {
    id: root

    property string symbol
    property string title
    property string place
    property string size
    property string badge
    property color badgeColor
    property string note
    property string revealSymbol
    property string revealHelp
    /// Empty: there is no such button. The same holds for the command.
    property string trashHelp
    property string trashSymbol: "trash"
    property string commandLabel
    property string commandHelp

    signal revealed()
    signal trashed()
    signal copied()

    readonly property real lift: hover.hovered ? 1 : 0

    implicitHeight: Math.max(88, words.implicitHeight + 28)
    radius: 15
    border.width: 1
    border.color: Qt.rgba(1, 1, 1, 0.06 + 0.08 * lift)
    gradient: Gradient {
        GradientStop { position: 0; color: Qt.rgba(1, 1, 1, 0.055 + 0.015 * root.lift) }
        GradientStop { position: 1; color: Qt.rgba(1, 1, 1, 0.030 + 0.010 * root.lift) }
    }
    Accessible.role: Accessible.ListItem
    Accessible.name: title
    Accessible.description: size + ". " + badge + ". " + note

    HoverHandler { id: hover }

    IconChip {
        id: icon
        x: 16
        y: 16
        symbol: root.symbol
        tint: root.badgeColor
    }
    Column {
        id: words
        anchors.left: icon.right
        anchors.leftMargin: 14
        anchors.right: side.left
        anchors.rightMargin: 20
        anchors.verticalCenter: parent.verticalCenter
        spacing: 3

        Row {
            width: parent.width
            spacing: 8

            Label {
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, parent.width - mark.width - parent.spacing)
                text: root.title
                size: 14
                weight: Font.DemiBold
                elide: Text.ElideMiddle
                Accessible.ignored: true
            }
            Tag {
                id: mark
                anchors.verticalCenter: parent.verticalCenter
                text: root.badge
                tint: root.badgeColor
            }
        }
        Label {
            width: parent.width
            visible: text !== ""
            text: root.place
            size: 11.5
            color: Theme.faint
            elide: Text.ElideMiddle
            Accessible.ignored: true
        }
        Label {
            width: Math.min(Theme.longestLine, parent.width)
            text: root.note
            size: 12
            lineHeight: 1.15
            color: Theme.secondary
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
    Item {
        id: side
        anchors.right: parent.right
        anchors.rightMargin: 16
        y: 14
        width: Math.max(figure.width, buttons.width)
        height: parent.height - 28

        FigureText {
            id: figure
            anchors.right: parent.right
            text: root.size
            size: 14
            weight: Font.Bold
            Accessible.ignored: true
        }
        Row {
            id: buttons
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            spacing: 8

            SmallButton {
                id: command
                anchors.verticalCenter: parent.verticalCenter
                visible: text !== ""
                text: root.commandLabel
                description: root.commandHelp
                onClicked: root.copied()

                Tip {
                    text: root.commandHelp
                    visible: command.hovered
                }
            }
            IconButton {
                anchors.verticalCenter: parent.verticalCenter
                symbol: root.revealSymbol
                text: root.revealHelp
                description: root.title
                onClicked: root.revealed()
            }
            IconButton {
                anchors.verticalCenter: parent.verticalCenter
                visible: root.trashHelp !== ""
                symbol: root.trashSymbol
                tint: Theme.destructive
                text: root.trashHelp
                onClicked: root.trashed()
            }
        }
    }
}
