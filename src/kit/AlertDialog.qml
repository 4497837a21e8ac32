import QtQuick
import Tidewell

/// Asks before something is done. The keyboard is at the way out, so that Enter never does it by
/// itself.
Modal {
    id: root

    property string text
    property string confirmLabel
    property string cancelLabel

    firstFocus: cancelButton

    Column {
        width: parent.width
        spacing: Theme.gap

        Label {
            width: parent.width
            text: root.title
            size: Theme.sizeHeading
            weight: Font.Bold
            wrapMode: Text.Wrap
            Accessible.role: Accessible.Heading
        }
        Label {
            width: parent.width
            text: root.text
            size: Theme.sizeText
            lineHeight: 1.25
            color: Theme.secondary
            wrapMode: Text.Wrap
        }
        Item {
            width: parent.width
            height: buttons.height + 14

            Row {
                id: buttons
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                spacing: Theme.gap

                GhostPillButton {
                    id: cancelButton
                    anchors.verticalCenter: parent.verticalCenter
                    text: root.cancelLabel
                    onClicked: root.cancelled()
                }
                PillButton {
                    anchors.verticalCenter: parent.verticalCenter
                    fontSize: Theme.sizeText
                    verticalPadding: 10
                    tint: Theme.destructive
                    text: root.confirmLabel
                    onClicked: root.confirm()
                }
            }
        }
    }
}
