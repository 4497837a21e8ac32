import QtQuick
import Tidewell

/// The standard card. Its size is that of its content and the padding, unless it is given one.
Item {
    id: root

    default property alias content: inside.data
    property color glow: Ambient.palette.primary
    property bool featured: false
    property bool vivid: false
    property real cornerRadius: Theme.radiusCard
    property real padding: 20
    /// From 0 to 1 while the pointer is over a card that can be pressed.
    property real lift: 0

    implicitWidth: inside.childrenRect.width + 2 * padding
    implicitHeight: inside.childrenRect.height + 2 * padding

    GlowBox {
        anchors.fill: parent
        cornerRadius: root.cornerRadius
        reach: 44
        glow: Theme.withOpacity(root.glow, (root.featured ? 0.16 : 0.06) + 0.10 * root.lift)
        fillTop: Theme.withOpacity(Theme.panelTop(root.glow), root.vivid ? 0.90 : 0.82)
        fillBottom: Theme.withOpacity(Theme.panelBottom(root.glow), root.vivid ? 0.92 : 0.86)
        rim: Qt.rgba(1, 1, 1, (root.featured ? 0.16 : 0.07) + 0.06 * root.lift)
        cornerLight: (root.vivid ? 1 : 0.45) + 0.25 * root.lift
    }

    Item {
        id: inside
        anchors.fill: parent
        anchors.margins: root.padding
    }
}
