import QtQuick
import Tidewell

/// The look of the secondary button: the outline of a capsule, brighter while the pointer is over
/// it.
Rectangle {
    property real lift: 0

    radius: height / 2
    color: Qt.rgba(1, 1, 1, 0.05 * lift)
    border.width: 1
    border.color: Qt.rgba(1, 1, 1, 0.20 + 0.16 * lift)
}
