import QtQuick
import Tidewell

/// A category of the review: its check ticks or unticks all of it, the rest of the row shows it.
RailRow {
    id: root

    property int mark: CheckControl.Off

    signal toggled()

    inset: 48

    Pressable {
        id: check
        z: 2
        width: 44
        height: parent.height
        cornerRadius: Theme.radiusSmall
        pressedScale: 0.94
        text: root.title
        description: root.line
        checkable: true
        checked: root.mark === CheckControl.On
        Accessible.checkStateMixed: root.mark === CheckControl.Mixed
        onClicked: root.toggled()

        contentItem: Item {
            CheckControl {
                anchors.centerIn: parent
                mark: root.mark
                lift: check.lift
            }
        }
    }
}
