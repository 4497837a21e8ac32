import QtQuick
import Tidewell

/// What stands on a page before its tool has looked: what it is for, and the button to begin.
FocusScope {
    id: root

    property string symbol
    property string title
    property string line
    property string buttonLabel
    property string buttonSymbol
    /// Between the words and the button.
    property alias between: slot.data

    signal started()

    implicitWidth: 480
    implicitHeight: column.implicitHeight

    Column {
        id: column
        width: parent.width
        spacing: 0

        GlossyBlob {
            anchors.horizontalCenter: parent.horizontalCenter
            size: 104
            symbol: root.symbol
        }
        Item { width: 1; height: 34 }
        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(implicitWidth, 620)
            visible: text !== ""
            horizontalAlignment: Text.AlignHCenter
            text: root.title
            size: Theme.sizePlacard
            weight: Font.Bold
            font.letterSpacing: -0.3
            wrapMode: Text.Wrap
            bottomPadding: 8
            Accessible.role: Accessible.Heading
        }
        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            width: parent.width
            visible: text !== ""
            horizontalAlignment: Text.AlignHCenter
            text: root.line
            size: Theme.sizeRow
            lineHeight: 1.25
            color: Theme.secondary
            wrapMode: Text.Wrap
        }
        Column {
            id: slot
            anchors.horizontalCenter: parent.horizontalCenter
            topPadding: childrenRect.height > 0 ? 24 : 0
        }
        Item { width: 1; height: 30 }
        PillButton {
            anchors.horizontalCenter: parent.horizontalCenter
            focus: true
            horizontalPadding: 32
            fontSize: Theme.sizeCard
            visible: root.buttonLabel !== ""
            symbol: root.buttonSymbol
            text: root.buttonLabel
            onClicked: root.started()
        }
    }
}
