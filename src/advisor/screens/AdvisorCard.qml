import QtQuick
import Tidewell

/// One kind of finding: what it is, in honest words, and what can be done about it.
GlowCard {
    id: root

    property string symbol
    property string title
    property string body
    property string size
    /// Empty: the program only tells.
    property string buttonLabel
    /// Shown under the words; empty for none.
    property string command
    property bool isWarning: false
    property bool isBusy: false
    /// Below the words, for what a card has beside them.
    property alias rows: more.data

    signal acted()

    implicitHeight: column.implicitHeight + 2 * padding

    Accessible.role: Accessible.ListItem
    Accessible.name: title
    Accessible.description: (size === "" ? "" : size + ". ") + body

    IconChip {
        id: icon
        size: 38
        symbol: root.symbol
    }
    Column {
        id: column
        anchors.left: icon.right
        anchors.leftMargin: Theme.gapWide
        anchors.right: parent.right
        spacing: Theme.gapSmall

        Item {
            width: parent.width
            height: name.height

            Label {
                id: name
                anchors.left: parent.left
                anchors.right: figure.left
                anchors.rightMargin: Theme.gap
                text: root.title
                size: Theme.sizeCard
                weight: Font.DemiBold
                elide: Text.ElideRight
                Accessible.ignored: true
            }
            FigureText {
                id: figure
                anchors.right: parent.right
                anchors.verticalCenter: name.verticalCenter
                text: root.size
                size: Theme.sizeCard
                weight: Font.Bold
                color: Ambient.palette.soft
                Accessible.ignored: true
            }
        }
        Label {
            width: Math.min(Theme.longestLine, parent.width)
            text: root.body
            size: Theme.sizeControl
            lineHeight: 1.25
            color: root.isWarning ? Theme.destructive : Theme.secondary
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            visible: text !== ""
            topPadding: 4
            text: root.command
            size: Theme.sizeText
            font.family: "monospace"
            wrapMode: Text.WrapAnywhere
            maximumLineCount: 6
            elide: Text.ElideRight
        }
        Column {
            id: more
            width: parent.width
            topPadding: children.length > 1 ? 8 : 0
        }
        Item {
            width: parent.width
            height: button.height + 10
            visible: root.buttonLabel !== ""

            PillButton {
                id: button
                anchors.bottom: parent.bottom
                visible: !root.isBusy
                fontSize: Theme.sizeControl
                horizontalPadding: 18
                verticalPadding: 8
                textColor: Qt.rgba(0.04, 0.05, 0.08, 1)
                text: root.buttonLabel
                onClicked: root.acted()
            }
            Spinner {
                x: 40
                anchors.verticalCenter: button.verticalCenter
                visible: root.isBusy
                diameter: 16
                Accessible.name: root.buttonLabel
            }
        }
    }
}
