import QtQuick
import QtQuick.Templates as T
import Tidewell

/// The bar beside a list that is longer than its place.
T.ScrollBar {
    id: root

    implicitWidth: 10
    padding: 2
    minimumSize: 0.06
    policy: T.ScrollBar.AsNeeded
    visible: size < 1

    contentItem: Rectangle {
        radius: width / 2
        color: Theme.outline(root.pressed ? 1 : root.hovered ? 0.4 : 0)
    }
}
