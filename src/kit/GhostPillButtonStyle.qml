import QtQuick
import Tidewell

/// The look of the secondary button: the outline of a capsule, brighter while the pointer is over
/// it.
Rectangle {
    property real lift: 0

    radius: height / 2
    color: Theme.hover(lift)
    border.width: 1
    border.color: Theme.outline(lift)
}
