import QtQuick
import Tidewell

/// A review without anything to review.
FocusScope {
    id: root

    required property ReviewScreen screen

    implicitWidth: column.implicitWidth
    implicitHeight: column.implicitHeight

    Column {
        id: column
        spacing: 0

        GlossyBlob {
            anchors.horizontalCenter: parent.horizontalCenter
            size: 84
            symbol: root.screen.emptySymbol
        }
        Item { width: 1; height: 26 }
        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            text: root.screen.emptyTitle
            size: 27
            weight: Font.Bold
            font.letterSpacing: -0.4
            Accessible.role: Accessible.Heading
        }
        Item { width: 1; height: 6 }
        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            text: root.screen.emptyLine
            size: 13.5
            color: Theme.secondary
        }
        Item { width: 1; height: 28 }
        PillButton {
            anchors.horizontalCenter: parent.horizontalCenter
            focus: true
            text: root.screen.scanAgainLabel
            onClicked: root.screen.scanAgain()
        }
    }
}
