import QtQuick
import Tidewell

/// A command that the program does not give itself, to be copied, with what else it would do.
Surface {
    id: root

    property string lead
    property string command
    property string note
    property string warning
    property bool isCopied: false

    signal copied()

    implicitHeight: column.implicitHeight + 28
    strength: 0.8

    Column {
        id: column
        x: 14
        y: 14
        width: parent.width - 28
        spacing: Theme.gapSmall

        Label {
            width: parent.width
            text: root.lead
            size: Theme.sizeControl
            color: Theme.secondary
            wrapMode: Text.Wrap
        }
        Item {
            width: parent.width
            height: copy.height

            Label {
                anchors.left: parent.left
                anchors.right: copy.left
                anchors.rightMargin: Theme.gap
                anchors.verticalCenter: parent.verticalCenter
                text: root.command
                size: Theme.sizeText
                font.family: "monospace"
                wrapMode: Text.WrapAnywhere
            }
            SmallButton {
                id: copy
                anchors.right: parent.right
                text: root.isCopied ? "Copied" : "Copy"
                description: root.command
                onClicked: root.copied()
            }
        }
        Label {
            width: parent.width
            visible: text !== ""
            text: root.note
            size: Theme.sizeNote
            color: Theme.secondary
            wrapMode: Text.Wrap
            maximumLineCount: 4
            elide: Text.ElideRight
        }
        Label {
            width: parent.width
            visible: text !== ""
            text: root.warning
            size: Theme.sizeControl
            weight: Font.DemiBold
            color: Theme.destructive
            wrapMode: Text.Wrap
            maximumLineCount: 4
            elide: Text.ElideRight
        }
    }
}
