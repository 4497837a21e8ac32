import QtQuick
import Tidewell

/// One big item: what it is, what removing it would cost, and what may be done with it.
Surface {
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
    /// Empty: there is no such button. The same holds for the command, and for putting back.
    property string trashHelp
    property string trashSymbol: "trash"
    property string commandLabel
    property string commandHelp
    property string putBackLabel
    property string putBackHelp

    signal revealed()
    signal trashed()
    signal copied()
    signal returned()

    implicitHeight: Math.max(88, words.implicitHeight + 28)
    reacts: true
    Accessible.role: Accessible.ListItem
    Accessible.name: title
    Accessible.description: size + ". " + badge + ". " + note

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
        anchors.leftMargin: Theme.gap
        anchors.right: side.left
        anchors.rightMargin: Theme.gapLarge
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.gapTight

        Row {
            width: parent.width
            spacing: Theme.gapSmall

            Label {
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, parent.width - mark.width - parent.spacing)
                text: root.title
                size: Theme.sizeRow
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
            size: Theme.sizeDetail
            color: Theme.faint
            elide: Text.ElideMiddle
            Accessible.ignored: true
        }
        Label {
            width: Math.min(Theme.longestLine, parent.width)
            text: root.note
            size: Theme.sizeNote
            lineHeight: 1.15
            color: Theme.secondary
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
    Item {
        id: side
        anchors.right: parent.right
        anchors.rightMargin: Theme.gapWide
        y: 14
        width: Math.max(figure.width, buttons.width)
        height: parent.height - 28

        FigureText {
            id: figure
            anchors.right: parent.right
            text: root.size
            size: Theme.sizeRow
            weight: Font.Bold
            Accessible.ignored: true
        }
        Row {
            id: buttons
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            spacing: Theme.gapSmall

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
            SmallButton {
                anchors.verticalCenter: parent.verticalCenter
                visible: text !== ""
                text: root.putBackLabel
                description: root.putBackHelp
                onClicked: root.returned()
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
