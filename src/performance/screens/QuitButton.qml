import QtQuick
import Tidewell

/// Asks an application to quit; a spinner while the answer is awaited. The keyboard stays at it all
/// the time.
Pressable {
    id: root

    property bool isBusy: false

    implicitHeight: 28
    horizontalPadding: 6

    background: GhostPillButtonStyle {
        visible: !root.isBusy
        lift: root.lift
    }
    contentItem: Item {
        Label {
            anchors.centerIn: parent
            visible: !root.isBusy
            text: root.text
            size: Theme.sizeNote
            weight: Font.Medium
            color: Theme.quiet(root.lift)
            Accessible.ignored: true
        }
        Spinner {
            anchors.centerIn: parent
            visible: root.isBusy
            diameter: 16
            lineWidth: 2
            Accessible.name: root.description
        }
    }
}
