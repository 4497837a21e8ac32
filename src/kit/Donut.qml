import QtQuick
import Tidewell

/// A ring gauge with room for content in the middle.
RingArc {
    id: root

    default property alias center: middle.data
    property real used: 0

    fill: Math.min(Math.max(used, 0.001), 1)

    Item {
        id: middle
        anchors.centerIn: parent
        width: root.diameter - 2 * root.lineWidth
        height: width
    }
}
